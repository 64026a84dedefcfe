#pragma once
#include <QHash>

#include "core/dialogues.h"

class QMessageBox;
class QWidget;

/// Answers with windows, above the one in front.
class DialoguesQt : public IDialogues {
 public:
  void Message(const QString& texte) override;
  void Information(const QString& texte) override;
  /// "Oui" is the default, but for what cannot be undone.
  bool Confirmer(const QString& question) override;
  std::optional<QString> Saisir(const QString& titre, const QString& invite, const QString& valeur) override;
  std::optional<QString> ChoisirFichier(const QString& titre, const QString& filtre) override;
  std::optional<QString> FichierAEnregistrer(const QString& titre, const QString& nom,
                                             const QString& filtre) override;
  bool Reessayer(const TReessai& reessai) override;
  void Progression(int fait, int total, const QString& nom) override;
  void TraiterEvenements() override;
  void CurseurAttente(bool actif) override;

  /// The main window shows the progress.
  std::function<void(int fait, int total, const QString& nom)> SurProgression;

 private:
  QString dossier_;  // of the file chosen last
};

/// The window above which a dialog opens; null for none.
QWidget* FenetreDevant();
