#pragma once
#include <QWidget>

class TForm;

/// The view of a screen, made for that form and kept as long as it: a QDialog for a modal form, any
/// other widget for one that fills the content panel. Null when the form has no view.
QWidget* CreerVue(TForm& form, QWidget* parent);
