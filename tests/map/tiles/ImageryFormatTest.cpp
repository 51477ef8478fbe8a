#include "map/tiles/ImageryFormat.h"

#include <gtest/gtest.h>

#include <string>

namespace vasker {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(ImageryFormat, IsToldByTheFirstBytes) {
    EXPECT_STREQ(imageryFormat("\xff\xd8\xff\xe0"sv), "jpeg");
    EXPECT_STREQ(imageryFormat("\x89PNG\r\n\x1a\n"sv), "png");
    EXPECT_STREQ(imageryFormat("RIFF\x10\0\0\0WEBP"sv), "webp");
    EXPECT_EQ(imageryFormat("RIFF\x10\0\0\0WAVE"sv), nullptr);
}

TEST(ImageryFormat, OfABeginningIsNone) {
    for (const std::string_view whole :
         {"\xff\xd8\xff"sv, "\x89PNG\r\n\x1a\n"sv, "RIFF\x10\0\0\0WEBP"sv}) {
        for (std::size_t size = 0; size < whole.size(); ++size) {
            EXPECT_EQ(imageryFormat(whole.substr(0, size)), nullptr) << size;
        }
    }
}

TEST(ImageryFormat, ScansAreCountedUpToTheirBound) {
    const std::string scan = "\xff\xda"s + std::string("\0\2", 2) + "x";
    EXPECT_EQ(jpegScans("", 100), 0);
    EXPECT_EQ(jpegScans("\xff\xd8\xff", 100), 0);
    EXPECT_EQ(jpegScans(scan + scan + scan, 100), 3);
    EXPECT_EQ(jpegScans(scan + scan + scan, 1), 2);
}

/// A chunk of a PNG image, with a checksum that nobody checks here.
std::string chunk(std::string_view type, std::string_view data = "") {
    return std::string(3, '\0') + static_cast<char>(data.size()) + std::string(type) +
           std::string(data) + "sum.";
}

TEST(ImageryFormat, OfAPngImageThePixelsAreTaken) {
    const std::string start = "\x89PNG\r\n\x1a\n" + chunk("IHDR", "head");
    const std::string pixels = chunk("PLTE", "rgb") + chunk("tRNS", "a") + chunk("IDAT", "pixels");
    const std::string end = chunk("IEND");
    const std::string texts = chunk("zTXt", "text") + chunk("iTXt") + chunk("tEXt", "t") +
                              chunk("iCCP", "profile") + chunk("sPLT") + chunk("gAMA");
    EXPECT_EQ(pngPixels(start + pixels + end), start + pixels + end);
    EXPECT_EQ(pngPixels(start + texts + pixels + texts + end + texts), start + pixels + end);
}

TEST(ImageryFormat, APngImageThatBreaksOffEndsWithItsLastWholeChunk) {
    const std::string start = "\x89PNG\r\n\x1a\n" + chunk("IHDR", "head");
    const std::string last = chunk("IDAT", "pixels");
    for (std::size_t size = 0; size < last.size(); ++size) {
        EXPECT_EQ(pngPixels(start + last.substr(0, size)), start) << size;
    }
    EXPECT_EQ(pngPixels(start + "\xff\xff\xff\xffIDAT...."), start);
    EXPECT_EQ(pngPixels(""), "");
    EXPECT_EQ(pngPixels("\x89PNG"), "\x89PNG");
}

} // namespace
} // namespace vasker
