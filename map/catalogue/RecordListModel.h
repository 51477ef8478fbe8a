#pragma once
// The rows of the catalogue: one per record that passes the filter, in its order.

#include "map/catalogue/RecordFilter.h"
#include "map/records/RecordSet.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QString>
#include <QtQmlIntegration>

#include <string>
#include <vector>

namespace vasker {

class RecordListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    /// Where records and query come from; null: there are records without a query.
    Q_PROPERTY(vasker::RecordFilter* filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(vasker::RecordSet records READ records WRITE setRecords NOTIFY recordsChanged)
    /// The id of the picked record; empty: none.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    /// The row of the picked record, -1 where it has none.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY recordsChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY recordsChanged)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY queryChanged)

  public:
    enum Role {
        IdRole = Qt::UserRole, ///< `recordId`: the record's id
        NameRole,              ///< `name`: verbatim, to be shown as plain text
        MarkupRole,     ///< `markup`: the name as styled text with the match in bold, or empty
        UnitRole,       ///< `unit`: the first "Reported unit", verbatim, or empty
        CategoryRole,   ///< `category`: the category's label and the source period
        SymbolRole,     ///< `symbol`: the icon's name
        TintRole,       ///< `tint`: the number of a PaletteColor
        FoundRole,      ///< `found`: where else the match is, a FoundText
        AccessibleRole, ///< `accessibleText`: the row in one sentence for assistive tools
    };

    explicit RecordListModel(QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] RecordFilter* filter() const noexcept { return m_filter; }
    void setFilter(RecordFilter* filter);
    [[nodiscard]] const RecordSet& records() const noexcept { return m_records; }
    void setRecords(const RecordSet& records) { show(records, m_query); }
    /// Sets the records and what was searched for, which decides which part of a name is set in
    /// bold; announces each row once.
    void show(const RecordSet& records, const QString& query);
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    void setSelection(const QString& selection);
    [[nodiscard]] int selectedRow() const noexcept { return m_selectedRow; }
    [[nodiscard]] bool isEmpty() const { return rowCount() == 0; }
    /// "12 of 40 records".
    [[nodiscard]] QString countText() const { return countText(m_records); }
    [[nodiscard]] static QString countText(const RecordSet& records);
    /// What stands in place of the rows where `query` finds none.
    [[nodiscard]] QString emptyTitle() const { return emptyTitle(m_query); }
    [[nodiscard]] static QString emptyTitle(const QString& query);

    /// The id of the record in `row`, empty outside the list.
    [[nodiscard]] Q_INVOKABLE QString idAt(int row) const;
    /// The row of the record with this id, -1 where it has none.
    [[nodiscard]] Q_INVOKABLE int rowOf(const QString& id) const;
    /// The first row whose name begins with `text` as TypeAhead compares them; -1: there is none.
    [[nodiscard]] Q_INVOKABLE int rowBeginning(const QString& text) const;

  Q_SIGNALS:
    void filterChanged();
    void recordsChanged();
    void queryChanged();
    void selectionChanged();
    void selectedRowChanged();
    /// The rows are about to be others, and are. Views keep the rows they have and show other
    /// records in them: making rows anew takes ten times as long.
    void aboutToBeReplaced();
    void replaced();

  private:
    [[nodiscard]] AssetIndex recordIn(int row) const;
    [[nodiscard]] const OpenMapRelease::Asset& asset(int row) const;
    [[nodiscard]] QString markup(const OpenMapRelease::Asset& asset) const;
    /// Adds or removes rows at the end until there are as many as `wanted`.
    void resize(const std::vector<AssetIndex>& wanted);
    void replace(const RecordSet& records);
    void foldQuery();
    void updateSelectedRow();

    QPointer<RecordFilter> m_filter;
    RecordSet m_records;
    QString m_query;
    std::string m_foldedQuery;
    QString m_selection;
    int m_selectedRow = -1;
};

} // namespace vasker
