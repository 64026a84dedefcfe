#pragma once
#include <QString>

/// The statements that bring a database of any age to the present layout, to be run in order and as
/// often as one likes: those already applied fail and are passed over.
QString ScriptMiseAJour();
