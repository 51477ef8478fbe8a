#include "platform/files/FileDialogParts.h"

#include <QColor>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace vasker {

namespace {

/// In sizes of the font; Qt's own width leaves large text no room.
constexpr int preferredWidth = 50;
constexpr int margins = 32; ///< logical pixels

/// By then the dialog has read the folder.
constexpr std::chrono::seconds openingTime{1};

void setName(QObject* part, const QString& name) {
    if (part != nullptr) {
        QQmlProperty::write(part, QStringLiteral("Accessible.name"), name, qmlContext(part));
    }
}

/// The first item that `isWanted`, of `from` and all below it; null: there is none.
template <typename IsWanted>
QQuickItem* findPart(QQuickItem* from, const IsWanted& isWanted) {
    if (isWanted(*from)) {
        return from;
    }
    for (QQuickItem* const each : from->childItems()) {
        if (QQuickItem* const found = findPart(each, isWanted)) {
            return found;
        }
    }
    return nullptr;
}

/// The popup that holds `part`, or null.
QObject* popupOf(QObject* part) {
    while (part != nullptr && !part->inherits("QQuickPopup")) {
        part = part->parent();
    }
    return part;
}

/// Two rows: the file's name and, below it, which files are listed.
void completeRows(QQuickItem& field) {
    const QString name = QCoreApplication::translate("vasker::FileDialogParts", "File name");
    const QString filter = QCoreApplication::translate("vasker::FileDialogParts", "Show");
    setName(&field, name);
    bool isFirst = true;
    for (QQuickItem* const each : field.parentItem()->childItems()) {
        if (each->inherits("QQuickLabel")) {
            each->setProperty("text", std::exchange(isFirst, false) ? name : filter);
        } else if (each->inherits("QQuickComboBox")) {
            setName(each, filter);
            // Its own height cuts large text.
            QQmlProperty::write(each, QStringLiteral("implicitHeight"), field.implicitHeight());
        }
    }
}

void completeFolders(const QQuickItem& bar) {
    setName(bar.property("upButton").value<QObject*>(),
            QCoreApplication::translate("vasker::FileDialogParts", "Parent folder"));
    setName(bar.property("textField").value<QObject*>(),
            QCoreApplication::translate("vasker::FileDialogParts", "Folder"));
    // It is white in every appearance.
    if (auto* const background = bar.property("background").value<QObject*>()) {
        background->setProperty("color", QColor(Qt::transparent));
    }
}

/// Typing replaces the name and keeps its ending.
void selectName(QQuickItem& field) {
    field.forceActiveFocus(Qt::PopupFocusReason);
    const auto length = QFileInfo(field.property("text").toString()).completeBaseName().size();
    QMetaObject::invokeMethod(
        &field, "select", Q_ARG(int, 0), Q_ARG(int, static_cast<int>(length)));
}

/// The dialog gives the focus to the file's row once it has read the folder.
void keepFocus(const QQuickWindow& window, QQuickItem& field, const QQuickItem& files) {
    selectName(field);
    auto* const opening = new QTimer(&field);
    const QVariant offered = field.property("text");
    QObject::connect(
        &window,
        &QQuickWindow::activeFocusItemChanged,
        opening,
        [&window, &field, &files, offered] {
            if (!files.isAncestorOf(window.activeFocusItem())) {
                return;
            }
            if (field.property("text") == offered) {
                selectName(field);
            } else {
                field.forceActiveFocus(Qt::PopupFocusReason);
            }
        },
        Qt::QueuedConnection);
    QObject::connect(opening, &QTimer::timeout, opening, &QObject::deleteLater);
    opening->start(openingTime);
}

void completeIn(const QQuickWindow& window, const QFont& font) {
    const auto findNamed = [&window](const char* name) {
        return findPart(window.contentItem(), [name](const QQuickItem& item) {
            return item.objectName() == QLatin1String(name);
        });
    };
    QQuickItem* const field = findNamed("fileNameTextField");
    const QQuickItem* const files = findNamed("fileDialogListView");
    QObject* const popup = popupOf(field);
    if (popup == nullptr || files == nullptr) {
        return;
    }
    popup->setProperty("font", font);
    popup->setProperty("width",
                       std::min(preferredWidth * font.pixelSize(), window.width() - margins));
    completeRows(*field);
    // Enter saves; queued, because the dialog takes the name over after it.
    QObject::connect(field, SIGNAL(accepted()), popup, SLOT(accept()), Qt::QueuedConnection);
    if (const QQuickItem* const bar = findPart(window.contentItem(), [](const QQuickItem& item) {
            return item.inherits("QQuickFolderBreadcrumbBar");
        })) {
        completeFolders(*bar);
    }
    keepFocus(window, *field, *files);
}

} // namespace

void completeFileDialog(const QQuickWindow& window, const QFont& font) {
    completeIn(window, font);
    // From Qt 6.8 on it has a window of its own.
    for (const QWindow* const each : QGuiApplication::topLevelWindows()) {
        const auto* const dialog = qobject_cast<const QQuickWindow*>(each);
        if (dialog != nullptr && dialog->transientParent() == &window) {
            completeIn(*dialog, font);
        }
    }
}

} // namespace vasker
