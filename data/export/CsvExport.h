#pragma once
// Records as a table for spreadsheets: CSV by RFC 4180, UTF-8 without a byte order mark, lines
// ending in LF.
//
// Each record is a row of its own, whose columns "fact" and "value" are empty, and then a row for
// each of its facts, in their order. Period, source, licence and attribution are those of the
// record in its own row and those of the fact in a fact's row, so that each row can be cited alone.
// What the header says stands in the names of the last four columns ("release=...", "sha256=...",
// "query=...", "filter=..."), whose cells are empty: every reader takes the first line for the
// names of the columns, and none trips over lines before it. A text that a spreadsheet may take for
// a formula, because it begins with one of =, +, -, @, a tab or a return and is no number, has an
// apostrophe before it.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "data/export/ExportBuffer.h"
#include "data/export/ExportHeader.h"

#include <span>

namespace vasker {

/// `records` in their order. Any thread; nothing is held between calls.
[[nodiscard]] ExportOutcome exportCsv(const OpenMapRelease& release,
                                      std::span<const AssetIndex> records,
                                      const ExportHeader& header,
                                      const ExportSink& sink);

} // namespace vasker
