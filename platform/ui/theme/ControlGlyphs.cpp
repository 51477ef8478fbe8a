#include "platform/ui/theme/ControlGlyphs.h"

#include <QtEndian>

#include <array>
#include <utility>
#include <vector>

namespace vasker {

namespace {

struct CodePoints {
    quint32 first;
    quint32 last;
};

constexpr std::array blocks{CodePoints{0x0000, 0x0008},
                            CodePoints{0x000B, 0x000C},
                            CodePoints{0x000E, 0x001F},
                            CodePoints{0x007F, 0x009F},
                            CodePoints{0x115F, 0x1160},
                            CodePoints{0x3164, 0x3164},
                            CodePoints{0xFDD0, 0xFDEF},
                            CodePoints{0xFFA0, 0xFFA0},
                            CodePoints{0xFFFE, 0xFFFF},
                            CodePoints{0x1107F, 0x1107F},
                            CodePoints{0x13430, 0x1343F},
                            CodePoints{0x16FE4, 0x16FE4},
                            CodePoints{0x1BCA0, 0x1BCA3}};
constexpr quint32 planes = 17; // each ends with two code points that are no characters

// Tables and fields are those of https://learn.microsoft.com/typography/opentype/spec/otff.

constexpr quint16 unitsPerEm = 1000;
constexpr quint16 glyphCount = 2; // .notdef and the empty one
constexpr quint16 emptyGlyph = 1;

/// Numbers in the byte order of the format.
class Bytes {
  public:
    template <typename Number>
    Bytes& add(Number number) {
        const Number stored = qToBigEndian(number);
        m_bytes.append(reinterpret_cast<const char*>(&stored), sizeof stored);
        return *this;
    }
    Bytes& u16(quint16 number) { return add(number); }
    Bytes& u32(quint32 number) { return add(number); }
    Bytes& append(const QByteArray& bytes) {
        m_bytes += bytes;
        return *this;
    }
    Bytes& zeros(int count) { return append(QByteArray(count, '\0')); }
    [[nodiscard]] const QByteArray& get() const noexcept { return m_bytes; }

  private:
    QByteArray m_bytes;
};

/// Many code points, one glyph: format 13.
QByteArray cmap() {
    Bytes groups;
    quint32 count = 0;
    const auto add = [&](const CodePoints& each) {
        groups.u32(each.first).u32(each.last).u32(emptyGlyph);
        ++count;
    };
    for (const CodePoints& each : blocks) {
        add(each);
    }
    for (quint32 plane = 1; plane < planes; ++plane) {
        add({(plane << 16U) + 0xFFFE, (plane << 16U) + 0xFFFF});
    }
    constexpr quint16 windows = 3;
    constexpr quint16 fullUnicode = 10;
    constexpr quint32 headerSize = 16;
    return Bytes()
        .u16(0) // version
        .u16(1) // of one table
        .u16(windows)
        .u16(fullUnicode)
        .u32(12) // its offset
        .u16(13)
        .u16(0)
        .u32(headerSize + 12 * count)
        .u32(0) // any language
        .u32(count)
        .append(groups.get())
        .get();
}

QByteArray head() {
    return Bytes()
        .u32(0x00010000) // version
        .u32(0x00010000) // revision
        .u32(0)          // checksum, which readers ignore
        .u32(0x5F0F3CF5) // magic number
        .u16(0)
        .u16(unitsPerEm)
        .zeros(16) // created, modified
        .zeros(8)  // the box around all glyphs
        .u16(0)
        .u16(8)   // smallest readable size
        .zeros(6) // direction, short offsets in loca, glyph format
        .get();
}

/// A contour of one point: fontconfig passes over control characters whose glyph has none.
QByteArray glyf() {
    constexpr quint8 onCurveAtTheOrigin = 0x31;
    return Bytes()
        .u16(1)
        .zeros(8) // the box around it
        .u16(0)   // its last point
        .u16(0)   // no instructions
        .add(onCurveAtTheOrigin)
        .zeros(1) // to an even length
        .get();
}

/// Of each glyph and of their end, in units of two bytes: .notdef has no outline.
QByteArray loca() {
    return Bytes().u16(0).u16(0).u16(static_cast<quint16>(glyf().size() / 2)).get();
}

/// Lines are no higher for it.
QByteArray hhea() {
    return Bytes().u32(0x00010000).u16(1).zeros(28).u16(1).get();
}

QByteArray maxp() {
    return Bytes().u32(0x00010000).u16(glyphCount).zeros(26).get();
}

QByteArray name() {
    constexpr quint16 windows = 3;
    constexpr quint16 basicPlane = 1;
    constexpr quint16 english = 0x0409;
    const std::array texts{std::pair(quint16{1}, QString::fromLatin1(controlGlyphsFamily)),
                           std::pair(quint16{2}, QStringLiteral("Regular"))};
    Bytes records;
    Bytes characters;
    for (const auto& [kind, text] : texts) {
        records.u16(windows).u16(basicPlane).u16(english).u16(kind);
        records.u16(static_cast<quint16>(2 * text.size()));
        records.u16(static_cast<quint16>(characters.get().size()));
        for (const QChar each : text) {
            characters.u16(each.unicode());
        }
    }
    return Bytes()
        .u16(0)
        .u16(texts.size())
        .u16(static_cast<quint16>(6 + records.get().size()))
        .append(records.get())
        .append(characters.get())
        .get();
}

struct Table {
    const char* tag;
    QByteArray content;
};

} // namespace

QByteArray controlGlyphs() {
    const std::vector<Table> tables{{"cmap", cmap()},
                                    {"glyf", glyf()},
                                    {"head", head()},
                                    {"hhea", hhea()},
                                    {"hmtx", QByteArray(2 * glyphCount + 2, '\0')},
                                    {"loca", loca()},
                                    {"maxp", maxp()},
                                    {"name", name()}};
    constexpr quint32 entrySize = 16;
    Bytes font;
    font.u32(0x00010000).u16(static_cast<quint16>(tables.size())).zeros(6);
    auto offset =
        static_cast<quint32>(font.get().size()) + entrySize * static_cast<quint32>(tables.size());
    Bytes contents;
    for (const Table& table : tables) {
        const auto size = static_cast<quint32>(table.content.size());
        const quint32 padding = (4 - size % 4) % 4;
        font.append(table.tag).u32(0).u32(offset).u32(size);
        contents.append(table.content).zeros(static_cast<int>(padding));
        offset += size + padding;
    }
    return font.append(contents.get()).get();
}

} // namespace vasker
