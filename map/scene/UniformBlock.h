#pragma once
// Writes the uniform block of a material's shader: consecutive 16-byte rows, as std140 lays out
// matrices and four-component vectors.

#include <QByteArray>
#include <QColor>
#include <QMatrix4x4>
#include <QVector4D>

#include <cstring>

namespace vasker {

class UniformBlock {
  public:
    explicit UniformBlock(QByteArray& bytes) : m_bytes(bytes) {}

    void write(const QMatrix4x4& matrix) { append(matrix.constData(), 64); }
    void write(const QVector4D& row) { append(&row, 16); }

  private:
    void append(const void* data, qsizetype size) {
        Q_ASSERT(m_offset + size <= m_bytes.size());
        std::memcpy(m_bytes.data() + m_offset, data, static_cast<std::size_t>(size));
        m_offset += size;
    }

    QByteArray& m_bytes;
    qsizetype m_offset = 0;
};

/// A colour as shaders blend it: components multiplied by alpha.
[[nodiscard]] inline QVector4D premultiplied(const QColor& color) {
    const auto alpha = static_cast<float>(color.alphaF());
    return {static_cast<float>(color.redF()) * alpha,
            static_cast<float>(color.greenF()) * alpha,
            static_cast<float>(color.blueF()) * alpha,
            alpha};
}

} // namespace vasker
