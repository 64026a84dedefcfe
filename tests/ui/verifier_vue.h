#pragma once
#include <QFont>
#include <QStringList>
#include <functional>
#include <memory>

class QWidget;

/// The font of the tests: one with figures of one width, at that size.
QFont PoliceEssai(double points);

/// What a person who uses the keyboard or a screen reader would miss in a view, a line a fault:
/// controls without a name, out of Tab's reach, cut by what they stand in or too small for their
/// text. Shows the view.
QStringList FautesDeVue(QWidget& vue);

/// The test fails for each fault. A view of the content panel gets the room of the smallest window, a
/// main window its own smallest size.
void VerifierVue(QWidget& vue);

/// Runs the check in light and dark and at 10 and 15 points.
void Partout(const std::function<void()>& verifier);

/// VerifierVue in all of them; the view is made anew for each.
void VerifierVuePartout(const std::function<std::unique_ptr<QWidget>()>& creer);
