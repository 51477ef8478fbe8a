#include "map/tiles/VectorTileDecoding.h"

#include "map/tiles/TileGeometry.h"
#include "map/tiles/TileInflation.h"

#include <protozero/pbf_message.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <variant>

namespace vasker {

namespace {

// The fields of the messages, by the format of vector tiles.
enum class TileField : protozero::pbf_tag_type { layers = 3 };
enum class LayerField : protozero::pbf_tag_type {
    name = 1,
    features = 2,
    keys = 3,
    values = 4,
    extent = 5
};
enum class FeatureField : protozero::pbf_tag_type { tags = 2, type = 3, geometry = 4 };
enum class ValueField : protozero::pbf_tag_type {
    text = 1,
    single = 2,
    real = 3,
    integer = 4,
    natural = 5,
    zigzag = 6,
    boolean = 7
};

using Wire = protozero::pbf_wire_type;

/// A field of another type than the format's is an unknown one: protozero trusts its caller.
template <typename Field>
constexpr std::uint32_t field(Field number, Wire type) {
    return protozero::tag_and_type(number, type);
}

/// The member that an attribute is read into.
using Attribute = std::variant<std::string VectorFeature::*,
                               std::int64_t VectorFeature::*,
                               int VectorFeature::*,
                               double VectorFeature::*,
                               bool VectorFeature::*>;

constexpr std::uint32_t maximumExtent = 1U << 24U;
constexpr std::size_t longestText = 256;
constexpr std::size_t textBytesPerByte = 8;
// No feature is described in fewer bytes: its own header, its type, one point.
constexpr std::size_t smallestFeatureBytes = 9;

using Value = std::variant<std::monostate, std::string_view, std::int64_t, double>;

/// Null for an attribute that this map does not use.
const Attribute* attributeOf(std::string_view key) {
    static constexpr std::array<std::pair<std::string_view, Attribute>, 13> attributes{
        {{"kind", &VectorFeature::kind},
         {"name", &VectorFeature::name},
         {"name_en", &VectorFeature::nameEnglish},
         {"name_fr", &VectorFeature::nameFrench},
         {"population", &VectorFeature::population},
         {"admin_level", &VectorFeature::adminLevel},
         {"rank", &VectorFeature::rank},
         {"way_area", &VectorFeature::wayArea},
         {"disputed", &VectorFeature::disputed},
         {"maritime", &VectorFeature::maritime},
         {"rail", &VectorFeature::rail},
         {"link", &VectorFeature::link},
         {"tunnel", &VectorFeature::tunnel}}};
    const auto* const found = std::find_if(attributes.begin(),
                                           attributes.end(),
                                           [key](const auto& entry) { return entry.first == key; });
    return found == attributes.end() ? nullptr : &found->second;
}

std::string_view textOf(protozero::data_view view) {
    return {view.data(), view.size()};
}

Value readValue(protozero::data_view bytes) {
    protozero::pbf_message<ValueField> message(bytes);
    Value value;
    while (message.next()) {
        switch (message.tag_and_type()) {
        case field(ValueField::text, Wire::length_delimited):
            value = textOf(message.get_view());
            break;
        case field(ValueField::single, Wire::fixed32):
            value = static_cast<double>(message.get_float());
            break;
        case field(ValueField::real, Wire::fixed64):
            value = message.get_double();
            break;
        case field(ValueField::integer, Wire::varint):
            value = message.get_int64();
            break;
        case field(ValueField::natural, Wire::varint):
            value = static_cast<double>(message.get_uint64());
            break;
        case field(ValueField::zigzag, Wire::varint):
            value = message.get_sint64();
            break;
        case field(ValueField::boolean, Wire::varint):
            value = std::int64_t{message.get_bool() ? 1 : 0};
            break;
        default:
            message.skip();
        }
    }
    return value;
}

double realOf(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    const auto* real = std::get_if<double>(&value);
    return real != nullptr && std::isfinite(*real) ? *real : 0;
}

template <typename Integer>
Integer integerOf(const Value& value) {
    // The largest whole number below which a double has them all: more people there are not.
    constexpr double largest =
        std::min(9.0e15, static_cast<double>(std::numeric_limits<Integer>::max()));
    return static_cast<Integer>(std::clamp(realOf(value), -largest, largest));
}

void spend(std::size_t& left, std::size_t cost) {
    if (cost > left) {
        throw protozero::invalid_length_exception{};
    }
    left -= cost;
}

/// What a tile may take, in bytes: its texts, and all of it.
struct DecodingBudget {
    std::size_t texts;
    std::size_t memory;
};

/// What a layer says before its features can be read; keys and values may follow them.
struct LayerHead {
    std::string_view name;
    std::uint32_t extent = 4096;
    std::vector<const Attribute*> keys; ///< null for one that is not used
    std::vector<Value> values;
    std::size_t featureCount = 0;
};

LayerHead readHead(protozero::data_view bytes, DecodingBudget& budget) {
    LayerHead head;
    spend(budget.memory, sizeof(VectorLayer));
    protozero::pbf_message<LayerField> message(bytes);
    while (message.next()) {
        switch (message.tag_and_type()) {
        case field(LayerField::name, Wire::length_delimited):
            head.name = textOf(message.get_view());
            break;
        case field(LayerField::extent, Wire::varint):
            head.extent = message.get_uint32();
            break;
        case field(LayerField::keys, Wire::length_delimited):
            head.keys.push_back(attributeOf(textOf(message.get_view())));
            break;
        case field(LayerField::values, Wire::length_delimited):
            spend(budget.memory, sizeof(Value));
            head.values.push_back(readValue(message.get_view()));
            break;
        case field(LayerField::features, Wire::length_delimited):
            ++head.featureCount;
            message.skip();
            break;
        default:
            message.skip();
        }
    }
    return head;
}

class FeatureReader {
  public:
    FeatureReader(const LayerHead& head, DecodingBudget& budget) : m_head(head), m_budget(budget) {}

    /// Nothing where the feature is passed over.
    std::optional<VectorFeature> read(protozero::data_view bytes) {
        VectorFeature feature;
        protozero::pbf_message<FeatureField> message(bytes);
        std::uint32_t type = 0;
        PackedNumbers tags;
        PackedNumbers geometry;
        while (message.next()) {
            switch (message.tag_and_type()) {
            case field(FeatureField::type, Wire::varint):
                type = static_cast<std::uint32_t>(message.get_enum());
                break;
            case field(FeatureField::tags, Wire::length_delimited):
                tags = message.get_packed_uint32();
                break;
            case field(FeatureField::geometry, Wire::length_delimited):
                geometry = message.get_packed_uint32();
                break;
            default:
                message.skip();
            }
        }
        if (type < 1 || type > 3) {
            return std::nullopt;
        }
        feature.geometry = static_cast<VectorFeature::Geometry>(type - 1);
        feature.parts = tileParts(feature.geometry, geometry, m_head.extent);
        if (feature.parts.empty()) {
            return std::nullopt;
        }
        spend(m_budget.memory, feature.memoryBytes());
        readAttributes(tags, feature);
        return feature;
    }

  private:
    void readAttributes(PackedNumbers tags, VectorFeature& feature) {
        while (!tags.empty()) {
            const std::uint32_t key = tags.front();
            tags.drop_front();
            if (tags.empty()) {
                return;
            }
            const std::uint32_t value = tags.front();
            tags.drop_front();
            if (key < m_head.keys.size() && m_head.keys[key] != nullptr &&
                value < m_head.values.size()) {
                std::visit([&](auto member) { set(feature.*member, m_head.values[value]); },
                           *m_head.keys[key]);
            }
        }
    }

    template <typename Integer>
    static void set(Integer& number, const Value& value) {
        number = integerOf<Integer>(value);
    }
    static void set(double& number, const Value& value) { number = realOf(value); }
    static void set(bool& flag, const Value& value) { flag = realOf(value) != 0; }

    void set(std::string& field, const Value& value) {
        const auto* text = std::get_if<std::string_view>(&value);
        if (text == nullptr || text->size() > longestText) {
            return;
        }
        spend(m_budget.texts, text->size());
        field = *text;
    }

    const LayerHead& m_head;
    DecodingBudget& m_budget;
};

/// Nothing where the layer is passed over.
std::optional<VectorLayer> readLayer(protozero::data_view bytes, DecodingBudget& budget) {
    const LayerHead head = readHead(bytes, budget);
    if (head.name.empty() || head.name.size() > longestText || head.extent == 0 ||
        head.extent > maximumExtent) {
        return std::nullopt;
    }
    VectorLayer layer{std::string(head.name), {}};
    layer.features.reserve(std::min({head.featureCount,
                                     bytes.size() / smallestFeatureBytes,
                                     budget.memory / sizeof(VectorFeature)}));
    FeatureReader reader(head, budget);
    protozero::pbf_message<LayerField> message(bytes);
    while (message.next(LayerField::features, Wire::length_delimited)) {
        if (auto feature = reader.read(message.get_view())) {
            layer.features.push_back(std::move(*feature));
        }
    }
    return layer;
}

} // namespace

std::optional<VectorTile> decodeVectorTile(std::string_view inflated) {
    if (inflated.size() > maximumTileBytes) {
        return std::nullopt;
    }
    DecodingBudget budget{.texts = textBytesPerByte * inflated.size(),
                          .memory = maximumDecodedBytes};
    VectorTile tile;
    try {
        protozero::pbf_message<TileField> message(inflated.data(), inflated.size());
        while (message.next()) {
            if (message.tag_and_type() == field(TileField::layers, Wire::length_delimited)) {
                if (auto layer = readLayer(message.get_view(), budget)) {
                    tile.layers.push_back(std::move(*layer));
                }
            } else {
                message.skip();
            }
        }
    } catch (const protozero::exception&) {
        return std::nullopt;
    }
    return tile;
}

} // namespace vasker
