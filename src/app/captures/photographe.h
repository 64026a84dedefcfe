#pragma once
#include <QAbstractButton>
#include <QTimer>
#include <deque>

#include "core/exceptions.h"
#include "ui/principal/programme.h"

using namespace Qt::StringLiterals;

class TFrmReservation;
class TFrmTicket;
class TFrmVirement;

/// What the pictures are taken of.
struct TSujet {
  QString Registre;   ///< register file, first layout
  QString Presences;  ///< scanner file
  QString Releve;     ///< bank file, layout of the sample school
  QString Dossier;    ///< where the pictures go
};

/// Lets the program go on for so long.
void Attendre(int ms);
/// The button of that caption, without its mnemonic. Raises Exception.
QAbstractButton* Bouton(const QWidget& fenetre, const QString& texte);

/// Goes through the screens and takes a picture of each, named after the screen and the suffix.
class Photographe : public QObject {
 public:
  Photographe(Programme& programme, TSujet sujet);

  /// Every screen of an office.
  void Tout(const QString& suffixe);
  /// The tablet: a class, and a search.
  void Tablette(const QString& suffixe);
  /// The same class on a day that the clock cannot mean.
  void TabletteAuRouge();
  /// A tablet without pupils.
  void TabletteVide(const QString& suffixe);
  /// The transfer, while it asks about its anomalies; it is refused.
  void Transfert(const QString& suffixe);
  /// A database that is not there yet is made, and the window shows what comes first.
  void Commencer();
  void PremiereUtilisation(const QString& suffixe);

 private:
  /// What is done in a dialog once it is there; true when its turn is over.
  using TPas = std::function<bool(QWidget&)>;

  template <class T>
  T& Ecran() {
    auto* form = dynamic_cast<T*>(programme_.Main.Panneau.Courante());
    if (form == nullptr) throw Exception(u"Un écran ne s'ouvre pas."_s);
    return *form;
  }

  // The hand and the camera.
  /// The main window, once it shows what was done.
  void Prendre(const QString& nom);
  void Prendre(QWidget& fenetre, const QString& nom);
  void Suivre(std::deque<TPas> pas);
  void Repondre();
  /// Takes the picture of the dialog that comes, and closes it.
  TPas Photo(const QString& nom);
  /// Chooses the file and accepts.
  TPas Fichier(const QString& chemin);
  /// A command by its words, so that the focus goes where it goes for a user.
  void Declencher(const QString& texte);
  /// A list screen while a row is changed.
  void Liste(TGestionnaire ecran, int ligne, const QString& champ, const QString& nom);
  /// A screen of several pages.
  void Pages(TGestionnaire ecran, const QString& nom);

  // The screens.
  void Signaletique();
  /// What the record opens, and the main window.
  void Dialogues();
  void Assistant();
  /// What the tax sheets of a level lack.
  void Manques();
  void Importation();
  void Presences();
  /// Tickets, orders, kitchen, accounts and sales.
  void Repas();
  void CommandeIncomplete(TFrmReservation& form);
  /// A pupil of that name, whom the small school has not: there the first one.
  void ChoisirEleve();
  /// Of a pupil without one there is no picture, which is told.
  void TransfertDeTicket(TFrmTicket& form);
  /// The three pages, the attribution of what is unknown, and the accounts that the record learns from it.
  void Virements();
  /// The last unknown payment, between two pupils of the year.
  void Attribution(TFrmVirement& form);
  void Repartition(TFrmVirement& form);
  /// The record of the pupil to whom the movements went.
  void Comptes(const QString& eleve);

  Programme& programme_;
  TSujet sujet_;
  QString suffixe_;
  std::deque<TPas> pas_;
  QTimer minuterie_;
};
