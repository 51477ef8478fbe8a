#pragma once
// A list of values for views.

#include <QVariantList>

#include <vector>

namespace vasker {

/// Each of `values`, whose type views know, in the same order.
template <typename Value>
[[nodiscard]] QVariantList valueList(const std::vector<Value>& values) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(values.size()));
    for (const Value& value : values) {
        list.append(QVariant::fromValue(value));
    }
    return list;
}

} // namespace vasker
