#include "platform/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Clipboard, HoldsTheTextThatItIsGiven) {
    Clipboard().setText(QStringLiteral("49.25, -123.1"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("49.25, -123.1"));
}

} // namespace
} // namespace vasker
