#pragma once
#include <QPushButton>
#include <QTreeView>

#include "support/controleur_essai.h"
#include "ui/principal/programme.h"

/// Answers the program's dialogs by clicking and typing in them, in the order in which a test expects
/// them. A dialog that is not expected, or one that never comes, fails the test.
class TRepondeur : public QObject {
 public:
  TRepondeur();
  ~TRepondeur() override;

  /// A message with this text; OK is pressed.
  TRepondeur& Attend(const QString& extrait) { return Clique(extrait, u"OK"_s); }
  /// A question with this text; "Oui" or "Non" is pressed.
  TRepondeur& Repond(const QString& extrait, bool oui) { return Clique(extrait, oui ? u"Oui"_s : u"Non"_s); }
  /// The button with this caption is pressed.
  TRepondeur& Clique(const QString& extrait, const QString& bouton);
  /// The text is typed in the first field, then the primary button is pressed.
  TRepondeur& Saisit(const QString& extrait, const QString& texte);
  /// The file dialog with this title takes the path.
  TRepondeur& Fichier(const QString& titre, const QString& chemin);
  /// The dialog is closed without an answer.
  TRepondeur& Ferme(const QString& extrait);
  /// The preview of one page is read, and closed.
  TRepondeur& Apercu(const QString& titre, std::function<void(const QString&)> lire);
  /// Whatever is to be done in the dialog; it may stay open for what is expected next.
  TRepondeur& Fait(const QString& extrait, std::function<void(QWidget&)> action);

  /// The texts of the dialogs so far.
  QStringList Vus;

 private:
  void Revenir();
  void Regarder();

  struct TAttendu {
    QString extrait;
    std::function<void(QWidget&)> action;
  };
  std::deque<TAttendu> attendus_;
};

/// Title and every text of a dialog.
QString TextesDe(const QWidget& fenetre);
/// The visible button with this caption, without its "&"; null when there is none.
QAbstractButton* BoutonDe(const QWidget& fenetre, const QString& texte);
/// Clicks it with the mouse; a missing or disabled one fails the test.
void Cliquer(const QWidget& fenetre, const QString& texte);

/// One column of a list as it stands on the screen, top to bottom.
QStringList ColonneVue(const QTreeView& liste, int colonne = 0);

/// The whole program offscreen, on a database of the test's own, with its real dialogs.
class TProgrammeEssai {
 public:
  /// Nothing runs yet: the test writes its school first. `base->` is connected to the same file.
  TProgrammeEssai();
  ~TProgrammeEssai();

  /// Makes the window and runs the start to its end.
  void Demarrer();
  /// Closes the window, as the user would.
  void Fermer();
  bool EstOuvert() const { return programme_ != nullptr && Fenetre().isVisible(); }

  FenetrePrincipale& Fenetre() const { return programme_->Fenetre; }
  TFrmMain& Main() const { return programme_->Main; }
  Programme& Tout() const { return *programme_; }
  /// Opens the screen by a click on its command, on its page.
  void Ouvrir(TGestionnaire gestionnaire);
  /// What has the hand, in the dialog that is open or in the window.
  QWidget& LaMain() const;
  /// It is called so, or shows that.
  bool EstIci(const QString& quoi) const;
  /// Sends the keys to whatever has the hand.
  void Presser(std::initializer_list<QKeyCombination> touches) const;
  /// Presses the key until that has the hand.
  void Jusqu(const QString& quoi, QKeyCombination touche = Qt::Key_Tab) const;
  /// The view of the open screen, as the class that it is; null for another.
  template <class T>
  T* Vue() const {
    return dynamic_cast<T*>(Fenetre().VueCourante());
  }

  TBaseEssai Base;
  THorlogeEssai Horloge;
  TRepondeur Dialogues;

 private:
  std::unique_ptr<Programme> programme_;
};
