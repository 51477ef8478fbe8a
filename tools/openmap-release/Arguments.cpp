#include "tools/openmap-release/Arguments.h"

#include "tools/openmap-release/Suggestion.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace vasker {
namespace {

[[noreturn]] void refuse(std::string_view option, std::string_view reason) {
    throw UsageError(std::string(option) + ": " + std::string(reason));
}

const OptionShape* shapeNamed(std::span<const OptionShape> shapes, std::string_view name) {
    const auto found = std::ranges::find(shapes, name, &OptionShape::name);
    return found == shapes.end() ? nullptr : &*found;
}

} // namespace

Arguments::Arguments(std::span<const std::string_view> words, std::span<const OptionShape> shapes) {
    bool onlyOperands = false;
    for (std::size_t place = 0; place < words.size(); ++place) {
        const std::string_view word = words[place];
        if (onlyOperands || word.size() < 2 || word.front() != '-') {
            m_operands.emplace_back(word);
            continue;
        }
        if (word == "--") {
            onlyOperands = true;
            continue;
        }
        const std::size_t equals = word.find('=');
        const std::string_view name = word.substr(0, equals);
        const OptionShape* shape = shapeNamed(shapes, name);
        if (shape == nullptr) {
            std::vector<std::string_view> known;
            std::ranges::transform(shapes, std::back_inserter(known), &OptionShape::name);
            refuse(name, "unknown option" + suggestion(name, known));
        }
        std::string value;
        if (shape->takes == OptionShape::Takes::nothing) {
            if (equals != std::string_view::npos) {
                refuse(name, "takes no value");
            }
        } else if (equals != std::string_view::npos) {
            value = word.substr(equals + 1);
        } else if (place + 1 == words.size() || shapeNamed(shapes, words[place + 1]) != nullptr) {
            refuse(name, "needs a value");
        } else {
            ++place;
            value = words[place];
        }
        if (!m_options.emplace(name, std::move(value)).second) {
            refuse(name, "given twice");
        }
    }
}

bool Arguments::has(std::string_view option) const {
    return m_options.find(option) != m_options.end();
}

std::optional<std::string> Arguments::value(std::string_view option) const {
    const auto found = m_options.find(option);
    return found == m_options.end() ? std::nullopt : std::optional(found->second);
}

std::string Arguments::requiredValue(std::string_view option) const {
    std::optional<std::string> given = value(option);
    if (!given) {
        refuse(option, "missing");
    }
    return std::move(*given);
}

std::uint64_t Arguments::requiredNumber(std::string_view option) const {
    const std::string text = requiredValue(option);
    std::uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || error != std::errc() || stopped != end) {
        refuse(option, "\"" + text + "\" is not a whole number");
    }
    return number;
}

std::string Arguments::onlyOperand(std::string_view name) const {
    return operands({name}).front();
}

std::vector<std::string> Arguments::operands(std::initializer_list<std::string_view> names) const {
    if (m_operands.size() < names.size()) {
        refuse(*(names.begin() + m_operands.size()), "missing");
    }
    if (m_operands.size() > names.size()) {
        refuse(m_operands[names.size()], "one operand too many");
    }
    return m_operands;
}

void Arguments::refuseOperands() const {
    if (!m_operands.empty()) {
        refuse(m_operands.front(), "unexpected operand");
    }
}

} // namespace vasker
