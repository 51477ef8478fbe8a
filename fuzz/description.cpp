// Any bytes are a description or are refused by name and line; what is accepted is whole.

#include "tools/openmap-release/packing/Description.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const vasker::Description description = vasker::readDescription("d.toml", bytes);
        const std::size_t rule = description.categories.find({{"Any Name"}, {}, "", {}});
        if (description.limitations.empty() || description.categories.rule(rule) == nullptr) {
            std::abort();
        }
        for (const vasker::TableRoleTraits& traits : vasker::tableRoles()) {
            const bool isRequired = traits.need == vasker::TableRoleTraits::Need::required;
            if (isRequired && description.table(traits.role) == nullptr) {
                std::abort();
            }
        }
    } catch (const vasker::InputError& error) {
        if (!std::string_view(error.what()).starts_with("d.toml:")) {
            std::abort();
        }
    }
    return 0;
}
