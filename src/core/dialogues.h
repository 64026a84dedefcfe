#pragma once
#include <QString>
#include <functional>
#include <optional>

/// What a failed connection proposes: a title, a first line, an explanation, and a link.
struct TReessai {
  QString Titre;
  QString Texte;
  QString Explication;
  QString Lien;
  QString Cause;  ///< what the database or the network answered
  std::function<void()> SurLien;
  std::function<bool()> SurFichier;  ///< chooses the data file of this computer; none for a server
};

/// A line of text that is asked for.
struct TSaisie {
  QString Titre;
  QString Invite;  ///< its first line is the label of the field, the others stand below
  QString Valeur = {};
  QString Aide = {};                                  ///< what a person needs to know besides, on a screen
  std::function<QString(const QString&)> Refus = {};  ///< why an answer will not do; "" for one that will
  QString Principal = {};                             ///< caption of the primary button; "" for the usual one
  QString Autre = {};  ///< caption of a button that answers `ValeurAutre` at once; "" for none
  QString ValeurAutre = {};
};

/// How logic talks to the user. The desktop program answers with dialogs, the batch program on the
/// terminal, a test with a script of expected questions and answers.
class IDialogues {
 public:
  virtual ~IDialogues() = default;

  /// Something went wrong or was refused.
  virtual void Message(const QString& texte) = 0;
  /// Something is done, or there is nothing to do.
  virtual void Information(const QString& texte) = 0;
  /// A question answered by yes (true) or no.
  virtual bool Confirmer(const QString& question) = 0;
  /// The same for what cannot be taken back: "Non" is the answer at hand.
  virtual bool ConfirmerGrave(const QString& question) { return Confirmer(question); }
  /// A line of text that is not refused; none when the user gives up.
  virtual std::optional<QString> Saisir(const TSaisie& saisie) = 0;
  /// An existing file to read; `filtre` as "Texte (*.txt *.csv)".
  virtual std::optional<QString> ChoisirFichier(const QString& titre, const QString& filtre) = 0;
  /// Where to write; `nom` is proposed.
  virtual std::optional<QString> FichierAEnregistrer(const QString& titre, const QString& nom,
                                                     const QString& filtre) = 0;
  /// "Réessayer" (true) or "Annuler".
  virtual bool Reessayer(const TReessai& reessai) = 0;

  /// How far a long work is; `nom` is what is in hand. `total` 0 hides the progress.
  virtual void Progression(int fait, int total, const QString& nom) = 0;
  /// Lets pending events of the windows through.
  virtual void TraiterEvenements() = 0;
  /// Shows or ends the wait cursor; calls are balanced by TAttente.
  virtual void CurseurAttente(bool actif) = 0;
};

/// The progress of a long work, hidden when the work ends, however it ends.
class TProgression {
 public:
  TProgression(IDialogues& dialogues, int total) : dialogues_(dialogues), total_(total) {}
  ~TProgression() { dialogues_.Progression(0, 0, {}); }
  TProgression(const TProgression&) = delete;
  TProgression& operator=(const TProgression&) = delete;
  void Avancer(int fait, const QString& nom) { dialogues_.Progression(fait, total_, nom); }

 private:
  IDialogues& dialogues_;
  int total_;
};

/// The wait cursor for as long as it lives.
class TAttente {
 public:
  explicit TAttente(IDialogues& dialogues) : dialogues_(dialogues) { dialogues_.CurseurAttente(true); }
  ~TAttente() { dialogues_.CurseurAttente(false); }
  TAttente(const TAttente&) = delete;
  TAttente& operator=(const TAttente&) = delete;

 private:
  IDialogues& dialogues_;
};
