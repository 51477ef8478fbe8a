#include "data/SearchedTexts.h"

namespace vasker {

std::vector<SearchedText> searchedTexts(const OpenMapRelease::Asset& asset) {
    using Field = SearchedText::Field;
    std::vector<SearchedText> texts;
    texts.reserve(4 + asset.facts.size());
    texts.push_back({Field::name, 0, asset.name});
    texts.push_back({Field::id, 0, asset.id});
    if (asset.reportedCompany) {
        texts.push_back({Field::company, 0, *asset.reportedCompany});
    }
    texts.push_back({Field::jurisdiction, 0, asset.jurisdiction});
    for (std::size_t at = 0; at < asset.facts.size(); ++at) {
        texts.push_back({Field::fact, at, asset.facts[at].value});
    }
    return texts;
}

} // namespace vasker
