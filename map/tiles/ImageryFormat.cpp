#include "map/tiles/ImageryFormat.h"

namespace vasker {

const char* imageryFormat(std::string_view bytes) noexcept {
    if (bytes.starts_with("\xff\xd8\xff")) {
        return "jpeg";
    }
    if (bytes.starts_with("\x89PNG\r\n\x1a\n")) {
        return "png";
    }
    if (bytes.starts_with("RIFF") && bytes.substr(8, 4) == "WEBP") {
        return "webp";
    }
    return nullptr;
}

} // namespace vasker
