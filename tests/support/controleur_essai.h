#pragma once
#include "application/controleur.h"
#include "support/ecole_essai.h"

using namespace Qt::StringLiterals;

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
  void MontrerCommande(TCommandePage, bool oui) override { Faits += oui ? u"+bouton"_s : u"-bouton"_s; }
  void MontrerArbre(bool oui) override { Faits += oui ? u"+arbre"_s : u"-arbre"_s; }
  void SuspendreArbre(bool) override {}
  void DureeBulles(int) override {}
  void ConstruireArbre() override { Faits += u"arbre"_s; }
  void IntitulerAnnee(const QString& texte) override { Faits += texte; }
  void CocherAnnee(int annee) override { Faits += u"coche %1"_s.arg(annee); }
  void OuvrirReservationTablette() override { Faits += u"tablette"_s; }
  void OuvrirReservation() override { Faits += u"reservation"_s; }
  void FermerEcran() override { Faits += u"ferme"_s; }
  void QuitterChamp() override { Faits += u"quitte"_s; }
  void Terminer() override { Faits += u"fin"_s; }

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
