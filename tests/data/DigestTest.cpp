#include "data/Digest.h"

#include "data/Cancelled.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Digest, IsTheSHA256OfTheBytesInLowerCaseHexadecimal) {
    // The three examples of FIPS 180-2 and the digest of nothing.
    EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(sha256(std::string(1'000'000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Digest, IsThatOfAllBytesHoweverManyStepsTheyTake) {
    // From `head -c SIZE /dev/zero | sha256sum`.
    EXPECT_EQ(sha256(std::string(1'048'576, '\0')),
              "30e14955ebf1352266dc2ff8067e68104607e750abb9d3b36582b8af909fcb58");
    EXPECT_EQ(sha256(std::string(1'048'577, '\0')),
              "2cb74edba754a81d121c9db6833704a8e7d417e5b13d1a19f4a52f007d644264");
}

TEST(Digest, IsNoLongerMadeWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(static_cast<void>(sha256("abc", stop.get_token())), Cancelled);
}

} // namespace
} // namespace vasker
