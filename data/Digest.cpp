#include "data/Digest.h"

#include "data/Cancelled.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace vasker {

namespace {

void requireDigest(int result) {
    if (result != 1) {
        throw std::runtime_error("SHA-256 is not available from libcrypto");
    }
}

} // namespace

std::string sha256(std::string_view bytes, const std::stop_token& stop) {
    constexpr std::size_t digestSize = 32;
    constexpr std::size_t step = 1U << 20U;
    constexpr std::string_view digits = "0123456789abcdef";

    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                          EVP_MD_CTX_free);
    if (context == nullptr) {
        throw std::bad_alloc();
    }
    requireDigest(EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr));
    for (; !bytes.empty(); bytes.remove_prefix(std::min(step, bytes.size()))) {
        throwIfCancelled(stop);
        requireDigest(EVP_DigestUpdate(context.get(), bytes.data(), std::min(step, bytes.size())));
    }
    std::array<unsigned char, digestSize> digest{};
    requireDigest(EVP_DigestFinal_ex(context.get(), digest.data(), nullptr));

    std::string text;
    text.reserve(2 * digestSize);
    for (const unsigned char byte : digest) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

} // namespace vasker
