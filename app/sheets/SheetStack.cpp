#include "app/sheets/SheetStack.h"

namespace vasker {

void SheetStack::request(Sheet sheet) {
    if (m_requested.insert(sheet).second) {
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
    if (m_current == sheet) {
        Q_EMIT closed(sheet);
        m_current = Sheet::NoSheet;
        present();
        Q_EMIT changed();
    }
}

void SheetStack::present() {
    if (m_current == Sheet::NoSheet && !m_requested.empty()) {
        m_current = *m_requested.begin();
    }
}

} // namespace vasker
