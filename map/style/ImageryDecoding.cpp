#include "map/style/ImageryDecoding.h"

#include "map/tiles/ImageryFormat.h"

#include <QBuffer>
#include <QImageReader>

namespace vasker {

namespace {

// Decoders make an image of the half that came as well, grey below; the end tells that all did.
// Some writers put a few bytes behind it.
bool hasItsEnd(QByteArrayView bytes, QByteArrayView format) {
    constexpr qsizetype slack = 64;
    const QByteArrayView end = bytes.last(qMin(bytes.size(), slack));
    return format == "jpeg"  ? end.contains("\xff\xd9")
           : format == "png" ? end.contains("IEND")
                             : true;
}

std::string_view asView(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool hasTooManyScans(const QByteArray& bytes, QByteArrayView format) {
    return format == "jpeg" && jpegScans(asView(bytes), maximumImageryScans) > maximumImageryScans;
}

} // namespace

QImage decodedImagery(const QByteArray& bytes) {
    const char* const format = imageryFormat(asView(bytes));
    if (format == nullptr || !hasItsEnd(bytes, format) || hasTooManyScans(bytes, format)) {
        return {};
    }
    const bool isPng = format == QByteArrayView("png");
    QBuffer buffer;
    buffer.setData(isPng ? QByteArray::fromStdString(pngPixels(asView(bytes))) : bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > maximumImagerySide || size.height() > maximumImagerySide) {
        return {};
    }
    QImage image;
    if (!reader.read(&image) || image.size() != size) {
        return {};
    }
    return image.convertToFormat(QImage::Format_RGB32);
}

} // namespace vasker
