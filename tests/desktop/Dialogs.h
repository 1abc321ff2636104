// The dialogs that Qt itself brings, which a test answers while they are open.
#pragma once

#include <gtest/gtest.h>

#include <QtWidgets>
#include <functional>

/// Runs `act` on the dialog that is about to open.
template <class Dialog>
void WhenOpen(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}
