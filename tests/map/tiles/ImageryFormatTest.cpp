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

} // namespace
} // namespace vasker
