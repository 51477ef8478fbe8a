#include "app/sheets/GuideSection.h"

#include "platform/ValueList.h"

#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace vasker {

namespace {

/// `text` without marks of code and links.
QString plain(QString text) {
    static const QRegularExpression link(QStringLiteral(R"(\[[^\]]*\]\([^)]*\))"));
    return text.remove(link).remove(u'`').trimmed();
}

/// Whether `line` separates the heading of a table from its rows.
bool isRule(QStringView line) {
    static const QRegularExpression rule(QStringLiteral(R"(^\|[-:| ]+\|$)"));
    return rule.match(line.toString()).hasMatch();
}

GuideRow tableRow(QStringView line) {
    QStringList cells;
    for (const QStringView cell : line.sliced(1).chopped(1).split(u'|')) {
        cells.append(plain(cell.toString()));
    }
    const QString label = cells.takeFirst();
    cells.removeAll(QString());
    return {label, cells.join(QStringLiteral(" · "))};
}

/// Reads one line after the other into rows.
class Rows {
  public:
    void read(QStringView line) {
        static const QRegularExpression number(QStringLiteral(R"(^\d+\. )"));
        if (line.isEmpty()) {
            m_continues = false;
        } else if (isRule(line)) {
            dropHeading();
        } else if (line.startsWith(u'|') && line.endsWith(u'|') && line.size() > 1) {
            m_rows.push_back(tableRow(line));
            m_continues = false;
        } else if (line.startsWith(u"- ")) {
            begin(QStringLiteral("• ") + line.sliced(2).toString());
        } else if (!m_continues || number.match(line.toString()).hasMatch()) {
            begin(line.toString());
        } else {
            (m_rows.back().text += u' ') += line;
        }
    }

    [[nodiscard]] std::vector<GuideRow> take() {
        for (GuideRow& row : m_rows) {
            row.text = plain(std::move(row.text));
        }
        std::erase(m_rows, GuideRow{});
        m_continues = false;
        return std::exchange(m_rows, {});
    }

  private:
    void dropHeading() {
        if (!m_rows.empty()) {
            m_rows.pop_back();
        }
        m_continues = false;
    }
    void begin(QString text) {
        m_rows.push_back({{}, std::move(text)});
        m_continues = true;
    }

    std::vector<GuideRow> m_rows;
    bool m_continues = false; ///< the next line belongs to the last row
};

} // namespace

QVariantList GuideSection::rowList() const {
    return valueList(rows);
}

std::vector<GuideSection> GuideSection::allOf(QStringView document) {
    std::vector<GuideSection> sections;
    Rows rows;
    const auto endSection = [&] {
        std::vector<GuideRow> read = rows.take();
        if (!sections.empty()) {
            sections.back().rows = std::move(read);
        }
    };
    for (const QStringView each : document.split(u'\n')) {
        const QStringView line = each.trimmed();
        if (line.startsWith(u"## ")) {
            endSection();
            sections.push_back({line.sliced(3).toString(), {}});
        } else {
            rows.read(line);
        }
    }
    endSection();
    return sections;
}

} // namespace vasker
