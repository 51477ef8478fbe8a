#pragma once
// The words of a command line, sorted into options and operands.

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// The command was called in a way it does not know; what() is a sentence for the caller.
class UsageError final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// An option that a command knows, with its dashes: "--query".
struct OptionShape {
    std::string_view name;
    enum class Takes { nothing, value } takes = Takes::value;
};

class Arguments {
  public:
    /// Sorts `words`. An option's value is the next word or follows "=" ("--query=--kind"); after
    /// the word "--" everything is an operand, and "-" is one. Throws UsageError for an unknown
    /// option, with the known one that may be meant, for a repeated one, and for a value that is
    /// missing (also where the next word is an option the command knows) or one too many.
    Arguments(std::span<const std::string_view> words, std::span<const OptionShape> shapes);

    [[nodiscard]] bool has(std::string_view option) const;
    [[nodiscard]] std::optional<std::string> value(std::string_view option) const;

    /// As value(); throws UsageError where the option was not given.
    [[nodiscard]] std::string requiredValue(std::string_view option) const;
    /// requiredValue() as a decimal number without sign; throws UsageError where it is none.
    [[nodiscard]] std::uint64_t requiredNumber(std::string_view option) const;

    /// The only operand, called `name` in the message; throws UsageError where there is none or
    /// more.
    [[nodiscard]] std::string onlyOperand(std::string_view name) const;
    /// As many operands as there are `names`, in their order; throws UsageError where there are
    /// fewer or more.
    [[nodiscard]] std::vector<std::string>
    operands(std::initializer_list<std::string_view> names) const;
    /// Throws UsageError where there is an operand.
    void refuseOperands() const;

  private:
    std::map<std::string, std::string, std::less<>> m_options;
    std::vector<std::string> m_operands;
};

} // namespace vasker
