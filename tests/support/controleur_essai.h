#pragma once
#include "application/controleur.h"
#include "support/ecole_essai.h"

/// A clock that stands where the test puts it.
class THorlogeEssai : public THorloge {
 public:
  TDateTime Maintenant() const override { return Moment; }
  TDateTime Moment = EncodeDate(2016, 10, 3) + EncodeTime(7, 5, 0);
};

/// A main window that notes when it is left and ended.
class TFenetreEssai : public IFenetrePrincipale {
 public:
  void MontrerPage(TPage, bool) override {}
  void ActiverPage(TPage) override {}
  void MontrerCommande(TCommandePage, bool) override {}
  void MontrerArbre(bool) override {}
  void SuspendreArbre(bool) override {}
  void DureeBulles(int) override {}
  void ConstruireArbre() override {}
  void IntitulerAnnee(const QString&) override {}
  void CocherAnnee(int) override {}
  void OuvrirReservationTablette() override {}
  void OuvrirReservation() override {}
  void FermerEcran() override { Faits += u"ferme"_s; }
  void QuitterChamp() override { Faits += u"quitte"_s; }
  void Terminer() override { Faits += u"fin"_s; }

  QStringList Faits;
};

/// The controller over a test's database; what it loads is freed with it.
class TControleurEssai {
 public:
  explicit TControleurEssai(TBaseEssai& base) : Base(base) {}
  ~TControleurEssai() { Globals = {}; }

  /// Parameters, tariffs and a year on display, 0 for the working year.
  void Charger(int annee = 0) {
    Controleur.ChargerParametres();
    Controleur.ChargerAnnee(annee == 0 ? Globals.AnneeScolaire : annee);
  }

  TBaseEssai& Base;
  TFenetreEssai Fenetre;
  THorlogeEssai Horloge;
  TControleur Controleur{*Base, Base.Reglages, Fenetre, Horloge};
};

/// The same, with the controller over it.
struct TEssaiControleur : TEssaiEcole {
  static TEleve& Eleve(int id) { return *Globals.Eleves->TrouverParId(id); }
  TControleurEssai essai{base};
};
