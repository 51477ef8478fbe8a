#pragma once
// The entries of the category picker, which is the map's legend: "All categories", then one per
// kind, in the order given.

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QtQmlIntegration>

namespace vasker {

class KindListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> kinds READ kinds WRITE setKinds NOTIFY kindsChanged)
    /// How many records each of the kinds holds, in their order; shorter: unknown for the rest.
    Q_PROPERTY(QList<int> counts READ counts WRITE setCounts NOTIFY countsChanged)
    /// The value of the entry that is chosen.
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY kindChanged)
    /// The chosen entry's row, -1 where the kind has none.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentChanged)
    Q_PROPERTY(QList<QString> labels READ labels NOTIFY kindsChanged)
    Q_PROPERTY(QString currentLabel READ currentLabel NOTIFY currentChanged)
    /// How its records are marked; an empty name for all categories.
    Q_PROPERTY(QString currentSymbol READ currentSymbol NOTIFY currentChanged)
    Q_PROPERTY(int currentTint READ currentTint NOTIFY currentChanged)

  public:
    enum Role {
        ValueRole = Qt::UserRole, ///< `value`: what `kind` becomes
        LabelRole,                ///< `label`: what is shown
        CountRole,                ///< `count`: how many records there are, as text
        CountTextRole,            ///< `countText`: the same in words
        SymbolRole,               ///< `symbol`: the icon of its records; empty for all categories
        TintRole,                 ///< `tint`: the number of a PaletteColor
    };

    explicit KindListModel(QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QList<QString>& kinds() const noexcept { return m_kinds; }
    void setKinds(const QList<QString>& kinds);
    [[nodiscard]] const QList<int>& counts() const noexcept { return m_counts; }
    void setCounts(const QList<int>& counts);
    [[nodiscard]] const QString& kind() const noexcept { return m_kind; }
    void setKind(const QString& kind);
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] QString currentLabel() const;
    [[nodiscard]] QString currentSymbol() const;
    [[nodiscard]] int currentTint() const;

    /// The value of the entry in `row`, empty outside the list.
    [[nodiscard]] Q_INVOKABLE QString valueAt(int row) const;
    /// What the entries are called, in their order.
    [[nodiscard]] QList<QString> labels() const;

  Q_SIGNALS:
    void kindsChanged();
    void countsChanged();
    void kindChanged();
    void currentChanged();

  private:
    [[nodiscard]] QString labelAt(int row) const;
    [[nodiscard]] int countAt(int row) const;

    QList<QString> m_kinds;
    QList<int> m_counts;
    QString m_kind;
};

} // namespace vasker
