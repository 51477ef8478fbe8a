#include "data/Digest.h"

#include <openssl/evp.h>

#include <array>
#include <stdexcept>

namespace vasker {

std::string sha256(std::string_view bytes) {
    constexpr std::size_t digestSize = 32;
    constexpr std::string_view digits = "0123456789abcdef";

    std::array<unsigned char, digestSize> digest{};
    if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr) !=
        1) {
        throw std::runtime_error("SHA-256 is not available from libcrypto");
    }
    std::string text;
    text.reserve(2 * digestSize);
    for (const unsigned char byte : digest) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

} // namespace vasker
