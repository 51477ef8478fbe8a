#include "platform/ui/TypeAhead.h"

#include <chrono>

namespace vasker {

namespace {

constexpr std::chrono::seconds pauseThatEndsASearch(1);
constexpr qsizetype longestBeginning = 200;

bool isControl(QChar character) {
    return character <= u' ' || character == u'\x7f';
}

} // namespace

TypeAhead::TypeAhead(QObject* parent) : QObject(parent) {
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseThatEndsASearch);
    connect(&m_pause, &QTimer::timeout, this, &TypeAhead::forget);
}

bool TypeAhead::takes(const QString& text) {
    const bool goesOn = !m_typed.isEmpty() && text == u" ";
    if (text.isEmpty() || (isControl(text.front()) && !goesOn)) {
        return false;
    }
    m_typed += text;
    m_pause.start();
    Q_EMIT typedChanged();
    return true;
}

bool TypeAhead::begins(const QString& text) const {
    return compared(text).startsWith(compared(m_typed));
}

void TypeAhead::forget() {
    m_pause.stop();
    if (!m_typed.isEmpty()) {
        m_typed.clear();
        Q_EMIT typedChanged();
    }
}

QString TypeAhead::compared(QStringView text) {
    QString letters = text.first(qMin(text.size(), longestBeginning))
                          .toString()
                          .normalized(QString::NormalizationForm_D);
    letters.removeIf([](QChar each) { return each.isMark(); });
    return letters.toCaseFolded();
}

} // namespace vasker
