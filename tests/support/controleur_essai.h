#pragma once
#include "application/controleur.h"
#include "support/ecole_essai.h"

/// A clock that stands where the test puts it.
class THorlogeEssai : public THorloge {
 public:
  TDateTime Maintenant() const override { return Moment; }
  TDateTime Moment = EncodeDate(2016, 10, 3) + EncodeTime(7, 5, 0);
};

/// A main window that notes what it is told.
class TFenetreEssai : public IFenetrePrincipale {
 public:
  void MontrerPage(TPage page, bool oui) override { Noter(oui ? u'+' : u'-', page); }
  void ActiverPage(TPage page) override { Noter(u'*', page); }
  void MontrerCommande(TCommandePage, bool oui) override {
    Faits += oui ? QStringLiteral("+bouton") : QStringLiteral("-bouton");
  }
  void MontrerArbre(bool oui) override { Faits += oui ? QStringLiteral("+arbre") : QStringLiteral("-arbre"); }
  void SuspendreArbre(bool) override {}
  void DureeBulles(int) override {}
  void ConstruireArbre() override { Faits += QStringLiteral("arbre"); }
  void IntitulerAnnee(const QString& texte) override { Faits += texte; }
  void CocherAnnee(int annee) override { Faits += QStringLiteral("coche %1").arg(annee); }
  void OuvrirReservationTablette() override { Faits += QStringLiteral("tablette"); }
  void OuvrirReservation() override { Faits += QStringLiteral("reservation"); }
  void FermerEcran() override { Faits += QStringLiteral("ferme"); }
  void QuitterChamp() override { Faits += QStringLiteral("quitte"); }
  void Terminer() override { Faits += QStringLiteral("fin"); }

  QStringList Faits;

 private:
  void Noter(QChar signe, TPage page) {
    static const char* const noms[] = {"PgEleve", "PgParametre", "pgRepas", "pgRepas3", "pgRepasNew"};
    Faits += signe + QString::fromLatin1(noms[static_cast<int>(page)]);
  }
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
