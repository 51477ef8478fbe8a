#include "data/ReleaseReader.h"

#include "data/Cancelled.h"
#include "data/JsonError.h"
#include "data/ReleaseFields.h"
#include "data/ReleaseRules.h"

#include <simdjson.h>

#include <array>
#include <bitset>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>

// A document is read while it is parsed, which takes the least time and memory. If anything in it
// is unusual (an unknown, repeated, escaped or missing key, a value of the wrong type, bad JSON),
// it is parsed once more as a tree, from which the exact answer is read. Both go through the lists
// of ReleaseFields.

namespace vasker {

namespace {

namespace stream = simdjson::ondemand;
namespace tree = simdjson::dom;

template <typename Type>
inline constexpr bool isList = false;
template <typename Element>
inline constexpr bool isList<std::vector<Element>> = true;

template <typename Type>
inline constexpr bool isOptional = false;
template <typename Element>
inline constexpr bool isOptional<std::optional<Element>> = true;

template <typename Record>
inline constexpr std::size_t fieldCount = std::tuple_size_v<decltype(fieldsOf<Record>)>;

/// What reading needs to know and finds out, besides the values.
struct Context {
    const std::stop_token& stop;
    std::optional<std::string> firstUnknownKey;
};

// From a stream. Any error means that the tree is read instead.

[[noreturn]] void failAsUnusual() {
    throw simdjson::simdjson_error(simdjson::INCORRECT_TYPE);
}

using Bytes = std::unique_ptr<std::uint8_t[]>; // NOLINT(*-avoid-c-arrays): not filled with zeros

/// Where texts are unescaped, one over the other. The parser has memory for this too, but does not
/// notice when there is none.
struct Unescaping {
    const stream::parser& parser;
    Bytes bytes;
};

/// In place of a Place: no message is made of the errors of a stream.
struct NoPlace {
    Context& context;
    const Unescaping& unescaping;
    template <typename KeyOrIndex>
    [[nodiscard]] const NoPlace& at(const KeyOrIndex&) const {
        return *this;
    }
};

template <typename Type>
Type get(stream::value json, const NoPlace&) {
    return json.get<Type>().value();
}

/// The view is valid until the next text is read.
template <>
std::string_view get<std::string_view>(stream::value json, const NoPlace& place) {
    std::uint8_t* end = place.unescaping.bytes.get();
    return place.unescaping.parser.unescape(json.get_raw_json_string().value(), end).value();
}

/// The tree refuses integers beyond 64 bits, the stream does not.
template <>
double get<double>(stream::value json, const NoPlace&) {
    constexpr double largestCertain = 9e18;
    const double number = json.get_double().value();
    if (!(std::abs(number) < largestCertain)) {
        failAsUnusual();
    }
    return number;
}

stream::array arrayOf(stream::value json, const NoPlace&) {
    return json.get_array().value();
}

stream::value elementOf(simdjson::simdjson_result<stream::value> element) {
    return element.value();
}

// From a tree.

/// The way from the root to a value; made into text only for a message.
class Place {
  public:
    explicit Place(Context& root) : context(root) {}
    [[nodiscard]] Place at(std::string_view key) const { return {*this, key, 0}; }
    [[nodiscard]] Place at(std::size_t index) const { return {*this, {}, index}; }

    [[nodiscard]] std::string text() const {
        if (m_parent == nullptr) {
            return {};
        }
        const std::string parent = m_parent->text();
        if (m_key.data() == nullptr) {
            return parent + '[' + std::to_string(m_index) + ']';
        }
        return parent.empty() ? std::string(m_key) : parent + '.' + std::string(m_key);
    }

    Context& context;

  private:
    Place(const Place& parent, std::string_view key, std::size_t index)
        : context(parent.context), m_parent(&parent), m_key(key), m_index(index) {}

    const Place* m_parent = nullptr; ///< null for the root
    std::string_view m_key;          ///< null for an element of a list
    std::size_t m_index = 0;
};

/// The JSON library's error together with the place of the value.
class LocatedError final : public JsonError, public OpenMapRelease::Located {
  public:
    LocatedError(simdjson::error_code error, const Place& place)
        : JsonError(simdjson::error_message(error)), Located(place.text()) {}
};

template <typename Type>
Type get(tree::element json, const Place& place) {
    Type value;
    if (const auto error = json.get(value)) {
        throw LocatedError(error, place);
    }
    return value;
}

tree::array arrayOf(tree::element json, const Place& place) {
    return get<tree::array>(json, place);
}

tree::element elementOf(tree::element element) {
    return element;
}

// From either, into a value that is still as its constructor made it.

template <HasFields Record>
void readInto(Record& record, stream::value json, const NoPlace& place);
template <HasFields Record>
void readInto(Record& record, tree::element json, const Place& place);

template <typename Json, typename JsonPlace>
void readInto(OpenMapRelease::Position& position, Json json, const JsonPlace& place) {
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
    std::size_t count = 0;
    for (auto each : arrayOf(json, place)) {
        const auto number = get<double>(elementOf(each), place.at(count));
        (count == 0 ? position.longitude : position.latitude) = number;
        ++count;
    }
    if (count != 2) {
        position = {noNumber, noNumber};
    }
}

template <typename Value, typename Json, typename JsonPlace>
void readInto(Value& value, Json json, const JsonPlace& place) {
    if constexpr (isList<Value>) {
        constexpr std::size_t elementsBetweenChecks = 1'024;
        if constexpr (std::is_same_v<typename Value::value_type, OpenMapRelease::Asset>) {
            value.reserve(maximumAssets); // moving records while their list grows takes long
        }
        for (auto each : arrayOf(json, place)) {
            if (value.size() % elementsBetweenChecks == 0) {
                throwIfCancelled(place.context.stop);
            }
            const auto& elementPlace = place.at(value.size());
            readInto(value.emplace_back(), elementOf(each), elementPlace);
        }
        value.shrink_to_fit();
    } else if constexpr (isOptional<Value>) {
        if (!json.is_null()) {
            readInto(value.emplace(), json, place);
        }
    } else if constexpr (std::is_same_v<Value, std::string>) {
        value = get<std::string_view>(json, place);
    } else {
        value = get<Value>(json, place);
    }
}

template <typename Record, typename Visit, std::size_t... index>
bool anyField(const Visit& visit, std::index_sequence<index...>) {
    return (visit(index, std::get<index>(fieldsOf<Record>)) || ...);
}

/// Calls `visit(index, field)` for the fields of `Record` until it returns true, which is returned.
template <typename Record, typename Visit>
bool anyField(const Visit& visit) {
    return anyField<Record>(visit, std::make_index_sequence<fieldCount<Record>>());
}

/// Reads an object whose keys are all known, are all there and come once, in any order.
template <HasFields Record>
void readInto(Record& record, stream::value json, const NoPlace& place) {
    std::bitset<fieldCount<Record>> isRead;
    std::size_t next = 0;
    stream::object object = json.get_object().value(); // named: the loop would not keep it alive
    for (auto property : object) {
        const stream::raw_json_string key = property.key().value();
        const auto readFrom = [&](std::size_t first) {
            return anyField<Record>([&](std::size_t index, const auto& field) {
                if (index < first || isRead[index] || !key.unsafe_is_equal(field.key)) {
                    return false;
                }
                readInto(record.*field.member, stream::value(property.value()), place);
                isRead.set(index);
                next = index + 1;
                return true;
            });
        };
        if (!readFrom(next) && !readFrom(0)) {
            failAsUnusual();
        }
    }
    if (anyField<Record>([&](std::size_t index, const auto& field) {
            return !isRead[index] && !isOptional<std::decay_t<decltype(record.*field.member)>>;
        })) {
        failAsUnusual();
    }
}

template <HasFields Record>
void readInto(Record& record, tree::element json, const Place& place) {
    std::array<std::optional<tree::element>, fieldCount<Record>> lastValues;
    for (const auto property : get<tree::object>(json, place)) {
        const bool isKnown = anyField<Record>([&](std::size_t index, const auto& field) {
            return field.key == property.key && (lastValues.at(index) = property.value, true);
        });
        if (!isKnown && !place.context.firstUnknownKey) {
            place.context.firstUnknownKey = place.at(property.key).text();
        }
    }
    anyField<Record>([&](std::size_t index, const auto& field) {
        if (const auto value = lastValues.at(index)) {
            readInto(record.*field.member, *value, place.at(field.key));
        } else if (!isOptional<std::decay_t<decltype(record.*field.member)>>) {
            throw LocatedError(simdjson::NO_SUCH_FIELD, place.at(field.key));
        }
        return false;
    });
}

template <typename Record>
std::optional<Record> readStream(const std::string& paddedJson, Context& context) {
    try {
        stream::parser parser;
        stream::document document = parser.iterate(paddedJson);
        const Unescaping unescaping{
            parser,
            std::make_unique_for_overwrite<Bytes::element_type[]>( // NOLINT(*-avoid-c-arrays)
                paddedJson.size() + simdjson::SIMDJSON_PADDING)};
        std::optional<Record> record(std::in_place);
        readInto(*record, stream::value(document.get_value()), NoPlace{context, unescaping});
        const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
        return isAtEnd ? std::move(record) : std::nullopt;
    } catch (const simdjson::simdjson_error&) {
        return std::nullopt;
    }
}

template <typename Record>
Record readTree(const std::string& paddedJson, Context& context) {
    tree::parser parser;
    tree::element root;
    if (const auto error = parser.parse(paddedJson).get(root)) {
        if (error == simdjson::MEMALLOC) {
            throw std::bad_alloc();
        }
        throw JsonError(simdjson::error_message(error));
    }
    Record record;
    readInto(record, root, Place(context));
    return record;
}

template <typename Record>
Record read(const std::string& paddedJson, Context& context) {
    if (paddedJson.starts_with("\xEF\xBB\xBF")) { // which newer versions of the library pass over
        throw JsonError(simdjson::error_message(simdjson::TAPE_ERROR));
    }
    std::optional<Record> record = readStream<Record>(paddedJson, context);
    return record ? std::move(*record) : readTree<Record>(paddedJson, context);
}

template <typename Record>
Record read(std::string_view json) {
    const std::stop_token never;
    Context context{never, std::nullopt};
    return read<Record>(withJSONPadding(json), context);
}

} // namespace

ReleaseReading readReleaseAndKeys(std::string json, const std::stop_token& stop) {
    json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    Context context{stop, std::nullopt};
    ReleaseReading reading{read<OpenMapRelease>(json, context), std::nullopt};
    reading.firstUnknownKey = std::move(context.firstUnknownKey);
    return reading;
}

std::string withJSONPadding(std::string_view json) {
    std::string bytes;
    bytes.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    bytes = json;
    return bytes;
}

OpenMapRelease readRelease(std::string_view json) {
    return read<OpenMapRelease>(json);
}

OpenMapRelease::Source readSource(std::string_view json) {
    return read<OpenMapRelease::Source>(json);
}

OpenMapRelease::Asset readAsset(std::string_view json) {
    return read<OpenMapRelease::Asset>(json);
}

OpenMapRelease::Fact readFact(std::string_view json) {
    return read<OpenMapRelease::Fact>(json);
}

} // namespace vasker
