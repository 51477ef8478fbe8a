#include "data/ReleaseReader.h"

#include <simdjson.h>

#include <limits>

namespace vasker {

namespace {

using simdjson::dom::array;
using simdjson::dom::element;
using simdjson::dom::object;

/// The way from the root to a value, kept on the stack and made into text only for a message.
class Place {
  public:
    Place() = default; ///< the root
    Place(const Place& parent, std::string_view key) : m_parent(&parent), m_key(key) {}
    Place(const Place& parent, std::size_t index) : m_parent(&parent), m_index(index) {}

    [[nodiscard]] std::string text() const {
        if (m_parent == nullptr) {
            return {};
        }
        std::string way = m_parent->text();
        if (m_index != noIndex) {
            return way + '[' + std::to_string(m_index) + ']';
        }
        return way.empty() ? std::string(m_key) : way + '.' + std::string(m_key);
    }

  private:
    static constexpr std::size_t noIndex = std::numeric_limits<std::size_t>::max();

    const Place* m_parent = nullptr;
    std::string_view m_key;
    std::size_t m_index = noIndex;
};

/// The library's error together with the place of the value.
class WrongValue final : public simdjson::simdjson_error, public OpenMapRelease::Located {
  public:
    WrongValue(simdjson::error_code error, const Place& place)
        : simdjson_error(error), Located(place.text()) {}
};

template <typename Value>
Value typed(element value, const Place& place) {
    Value result;
    if (const auto error = value.get(result)) {
        throw WrongValue(error, place);
    }
    return result;
}

struct UnknownKeys {
    std::optional<std::string> first;

    void note(const Place& record, std::string_view key) {
        if (!first) {
            first = Place(record, key).text();
        }
    }
};

template <std::size_t Count>
using Keys = std::array<std::string_view, Count>;

constexpr Keys<7> releaseKeys = {"schemaVersion",
                                 "releaseID",
                                 "generatedAt",
                                 "coverageName",
                                 "limitations",
                                 "sources",
                                 "assets"};
constexpr Keys<8> sourceKeys = {"id",
                                "publisher",
                                "dataset",
                                "sourceURL",
                                "licenceURL",
                                "attribution",
                                "conditions",
                                "modifications"};
constexpr Keys<12> assetKeys = {"id",
                                "name",
                                "kind",
                                "jurisdiction",
                                "sourceID",
                                "status",
                                "asOf",
                                "latitude",
                                "longitude",
                                "reportedCompany",
                                "facts",
                                "routes"};
constexpr Keys<4> factKeys = {"label", "value", "sourceID", "asOf"};

/// The values of one object under the keys of its record; the last value of each key.
template <std::size_t Count>
class Fields {
  public:
    Fields(element value, const Keys<Count>& keys, const Place& place, UnknownKeys& unknownKeys)
        : m_keys(keys), m_place(place) {
        for (const auto field : typed<object>(value, place)) {
            if (const std::size_t at = find(field.key); at < Count) {
                m_values[at] = field.value;
                m_present[at] = true;
            } else {
                unknownKeys.note(place, field.key);
            }
        }
    }

    template <typename Value>
    [[nodiscard]] Value get(std::string_view key) {
        const std::size_t at = find(key);
        if (!m_present[at]) {
            throw WrongValue(simdjson::NO_SUCH_FIELD, Place(m_place, key));
        }
        return typed<Value>(m_values[at], Place(m_place, key));
    }

    [[nodiscard]] std::string text(std::string_view key) {
        return std::string(get<std::string_view>(key));
    }

    /// Nothing where the key is absent or its value null.
    [[nodiscard]] std::optional<std::string> optionalText(std::string_view key) {
        const std::size_t at = find(key);
        if (!m_present[at] || m_values[at].is_null()) {
            return std::nullopt;
        }
        return text(key);
    }

    /// The elements of the array under `key`, each read by `read(element, place)`.
    template <typename Read>
    [[nodiscard]] auto list(std::string_view key, const Read& read) {
        return readList(get<array>(key), Place(m_place, key), read);
    }

  private:
    /// Where `key` stands among the record's keys, or Count. Keys mostly come in the record's
    /// order.
    std::size_t find(std::string_view key) {
        if (m_keys[m_next] != key) {
            m_next = 0;
            while (m_keys[m_next] != key) {
                if (++m_next == Count) {
                    m_next = 0;
                    return Count;
                }
            }
        }
        const std::size_t at = m_next;
        m_next = at + 1 == Count ? 0 : at + 1;
        return at;
    }

    const Keys<Count>& m_keys;
    const Place& m_place;
    std::array<element, Count> m_values{};
    std::array<bool, Count> m_present{};
    std::size_t m_next = 0;
};

template <typename Read>
auto readList(array values, const Place& place, const Read& read) {
    std::vector<decltype(read(element(), place))> list;
    list.reserve(values.size());
    for (const element value : values) {
        list.push_back(read(value, Place(place, list.size())));
    }
    return list;
}

OpenMapRelease::Position readPosition(element value, const Place& place) {
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
    std::array<double, 2> pair{};
    std::size_t count = 0;
    for (const element number : typed<array>(value, place)) {
        const auto degrees = typed<double>(number, Place(place, count));
        if (count < pair.size()) {
            pair[count] = degrees;
        }
        ++count;
    }
    if (count != pair.size()) {
        return {noNumber, noNumber};
    }
    return {pair[0], pair[1]};
}

OpenMapRelease::Route readRoute(element value, const Place& place) {
    return readList(typed<array>(value, place), place, readPosition);
}

OpenMapRelease::Source readSource(element value, const Place& place, UnknownKeys& unknownKeys) {
    Fields fields(value, sourceKeys, place, unknownKeys);
    return {.id = fields.text("id"),
            .publisher = fields.text("publisher"),
            .dataset = fields.text("dataset"),
            .sourceURL = fields.text("sourceURL"),
            .licenceURL = fields.text("licenceURL"),
            .attribution = fields.text("attribution"),
            .conditions = fields.text("conditions"),
            .modifications = fields.text("modifications")};
}

OpenMapRelease::Fact readFact(element value, const Place& place, UnknownKeys& unknownKeys) {
    Fields fields(value, factKeys, place, unknownKeys);
    return {.label = fields.text("label"),
            .value = fields.text("value"),
            .sourceID = fields.text("sourceID"),
            .asOf = fields.text("asOf")};
}

OpenMapRelease::Asset readAsset(element value, const Place& place, UnknownKeys& unknownKeys) {
    const auto fact = [&unknownKeys](element each, const Place& at) {
        return readFact(each, at, unknownKeys);
    };
    Fields fields(value, assetKeys, place, unknownKeys);
    return {.id = fields.text("id"),
            .name = fields.text("name"),
            .kind = fields.text("kind"),
            .jurisdiction = fields.text("jurisdiction"),
            .sourceID = fields.text("sourceID"),
            .status = fields.text("status"),
            .asOf = fields.text("asOf"),
            .latitude = fields.get<double>("latitude"),
            .longitude = fields.get<double>("longitude"),
            .reportedCompany = fields.optionalText("reportedCompany"),
            .facts = fields.list("facts", fact),
            .routes = fields.list("routes", readRoute)};
}

OpenMapRelease readRelease(element value, const Place& place, UnknownKeys& unknownKeys) {
    const auto limitation = [](element each, const Place& at) {
        return std::string(typed<std::string_view>(each, at));
    };
    const auto source = [&unknownKeys](element each, const Place& at) {
        return readSource(each, at, unknownKeys);
    };
    const auto asset = [&unknownKeys](element each, const Place& at) {
        return readAsset(each, at, unknownKeys);
    };
    Fields fields(value, releaseKeys, place, unknownKeys);
    return {.schemaVersion = fields.get<std::int64_t>("schemaVersion"),
            .releaseID = fields.text("releaseID"),
            .generatedAt = fields.text("generatedAt"),
            .coverageName = fields.text("coverageName"),
            .limitations = fields.list("limitations", limitation),
            .sources = fields.list("sources", source),
            .assets = fields.list("assets", asset)};
}

/// `read` on the root of the one parse of `json`; the parser and its memory end with the call.
template <typename Read>
auto parsed(std::string_view json, const Read& read) {
    simdjson::dom::parser parser;
    element root;
    if (const auto error = parser.parse(json.data(), json.size()).get(root)) {
        throw simdjson::simdjson_error(error);
    }
    UnknownKeys unknownKeys;
    return read(root, Place(), unknownKeys);
}

} // namespace

ReleaseReading readReleaseAndKeys(std::string_view json) {
    return parsed(json, [](element root, const Place& place, UnknownKeys& unknownKeys) {
        ReleaseReading reading;
        reading.release = readRelease(root, place, unknownKeys);
        reading.firstUnknownKey = std::move(unknownKeys.first);
        return reading;
    });
}

OpenMapRelease readRelease(std::string_view json) {
    return readReleaseAndKeys(json).release;
}

OpenMapRelease::Source readSource(std::string_view json) {
    return parsed(json, [](element root, const Place& place, UnknownKeys& unknownKeys) {
        return readSource(root, place, unknownKeys);
    });
}

OpenMapRelease::Asset readAsset(std::string_view json) {
    return parsed(json, [](element root, const Place& place, UnknownKeys& unknownKeys) {
        return readAsset(root, place, unknownKeys);
    });
}

OpenMapRelease::Fact readFact(std::string_view json) {
    return parsed(json, [](element root, const Place& place, UnknownKeys& unknownKeys) {
        return readFact(root, place, unknownKeys);
    });
}

} // namespace vasker
