#pragma once
#include <QApplication>

class IDialogues;

/// The application with the one handler that shows what nobody caught, and goes on.
class Application : public QApplication {
  Q_OBJECT
 public:
  using QApplication::QApplication;

  bool notify(QObject* objet, QEvent* evenement) override;
  /// Language of the school and of Qt's own texts, name, look.
  void Preparer();

  /// Outlives what it is asked to show; null for none.
  IDialogues* Dialogues = nullptr;

 private:
  void Montrer(const QString& texte);
};
