#include "app/sheets/SheetStack.h"

namespace vasker {

namespace {

using Sheet = SheetStack::Sheet;

bool isHelp(Sheet sheet) noexcept {
    return sheet == Sheet::Guide || sheet == Sheet::Shortcuts;
}

} // namespace

void SheetStack::request(Sheet sheet) {
    if (m_requested.insert(sheet).second) {
        if (isHelp(sheet)) {
            dismiss(sheet == Sheet::Guide ? Sheet::Shortcuts : Sheet::Guide);
        }
        Q_EMIT requestedChanged(sheet);
        present();
        Q_EMIT changed();
    }
}

void SheetStack::dismiss(Sheet sheet) {
    if (m_requested.erase(sheet) > 0) {
        Q_EMIT requestedChanged(sheet);
        Q_EMIT changed();
    }
}

void SheetStack::setClosed(Sheet sheet) {
    dismiss(sheet);
    if (Sheet& place = placeOf(sheet); place == sheet) {
        Q_EMIT closed(sheet);
        place = Sheet::NoSheet;
        present();
        Q_EMIT changed();
    }
}

Sheet& SheetStack::placeOf(Sheet sheet) noexcept {
    return isHelp(sheet) ? m_help : m_open;
}

void SheetStack::present() {
    for (const Sheet each : m_requested) {
        // What leaves gives the keyboard back first, and nothing opens below help.
        const bool hasTurn = isHelp(each) ? m_open == shown() : m_help == Sheet::NoSheet;
        if (Sheet& place = placeOf(each); hasTurn && place == Sheet::NoSheet) {
            place = each;
        }
    }
}

} // namespace vasker
