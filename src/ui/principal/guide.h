#pragma once
#include <QDialog>

class QTextBrowser;

/// The guide that is built into the program; it stays open beside the work.
class Guide : public QDialog {
  Q_OBJECT
 public:
  explicit Guide(QWidget* parent = nullptr);
  /// What it shows, as plain text.
  QString Texte() const;

 private:
  QTextBrowser* page_;
};

struct TToucheAide {
  QString Touche, Effet;
};
/// The keys of the main window and of what stands in it, as they are told to the user.
const std::vector<TToucheAide>& TouchesAide();
/// A list of them, as a table.
QWidget* ListeDesTouches();
