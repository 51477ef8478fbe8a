#pragma once
// The user guide as a view shows it: a document of sections with plain rows.

#include <QString>
#include <QStringView>
#include <QVariantList>
#include <QtQmlIntegration>
#include <qqml.h>

#include <vector>

namespace vasker {

/// A paragraph, an item of a list with its number or bullet, or a row of a table.
struct GuideRow {
    Q_GADGET
    QML_VALUE_TYPE(guideRow)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)

  public:
    QString label; ///< the first cell of a row of a table, else empty
    QString text;  ///< the other cells, or all there is

    friend bool operator==(const GuideRow&, const GuideRow&) = default;
};

struct GuideSection {
    Q_GADGET
    QML_VALUE_TYPE(guideSection)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QVariantList rows READ rowList CONSTANT)

  public:
    QString title;
    std::vector<GuideRow> rows;

    /// Values of GuideRow.
    [[nodiscard]] QVariantList rowList() const;

    /// The sections of `document`, which is of the Markdown that the guide is written in: headings
    /// of the second level, paragraphs, lists of one level, tables, `code`. What stands before the
    /// first heading of that level, the heading of a table and links to other documents are left
    /// out.
    [[nodiscard]] static std::vector<GuideSection> allOf(QStringView document);
};

} // namespace vasker
