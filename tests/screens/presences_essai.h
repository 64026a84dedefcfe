#pragma once
#include "screens/attendance/frm_presences.h"
#include "support/ecran_essai.h"

inline const QString kMemorisees = u"Les présences ont été mémorisées."_s;

/// The screen of the presences, over one pupil, code 11, with day-care of the morning, meals and the day flat
/// rate.
class TPresencesEssai : public testing::Test {
 protected:
  struct TEcole : TBaseEssai {
    TEcole() {
      using namespace Essai;
      TEcoleEssai ecole(*this);
      ecole.tarif(Matin, TousLesJours, u"07:00"_s, u"08:30"_s, Forfait, u"1"_s, ScanPresence);
      ecole.tarif(FamilleRepas, TousLesJours, u"11:30"_s, u"13:30"_s, Forfait, u"1"_s, ScanPresence);
      ecole.parametres(u"30=1|34=ecole"_s);
      ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
    }
  };
  void SetUp() override {
    Globals.DossierTemporaire = Base.Chemin({});
    Base.Reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, Base.Chemin(u"archives"_s));
    Form.Montrer();
  }
  QString Stockees() { return Base.Valeur(u"SELECT COUNT(*) FROM PRESENCES"_s); }

  TEcole Base;
  TEcranEssai Ecran{Base};
  TfrmPresences Form{Ecran.Contexte};
};
