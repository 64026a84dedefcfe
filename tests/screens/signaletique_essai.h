#pragma once
#include "core/mois.h"
#include "screens/documents/frm_print_wizard.h"
#include "screens/pupils/frm_signaletique.h"
#include "support/ecran_essai.h"
#include "support/grilles.h"

/// A pupil of whom there is something to see in each place of its record, and one of whom there is
/// nothing. What the screen asks of the wizard is noted.
struct TSignaletiqueEssai : TEssaiEcole {
  struct TAssistant : IAssistant {
    std::optional<TChoixDocument> Demander(const TDemandeAssistant& demande) override {
      Demande = demande;
      return Reponse;
    }
    TDemandeAssistant Demande;
    std::optional<TChoixDocument> Reponse;
  };
  void SetUp() override {
    using namespace Essai;
    ecole.tarif(Matin, TousLesJours, u"07:00"_s, u"08:30"_s, Forfait, u"1.00"_s, ScanPresence);
    ecole.tarif(Midi, TousLesJours, u"12:00"_s, u"13:00"_s, Forfait, u"0.50"_s, ScanPresence);
    ecole.tarif(Soir, LundiMardiJeudiVendredi, u"15:30"_s, u"18:00"_s, Forfait, u"2.25"_s, ScanSortie);
    ecole.tarif(Mercredi, 3, u"12:30"_s, u"18:00"_s, Forfait, u"3.00"_s, ScanPresence);
    ecole.tarif(FamilleEtude, TousLesJours, u"15:30"_s, u"16:30"_s, Forfait, u"4.00"_s, ScanPresence);
    ecole.tarif(FamilleSoupe, TousLesJours, u"11:00"_s, u"14:00"_s, Forfait, u"0.75"_s, ScanPresence);
    ecole.parametre(102, u"5"_s);
    rose.nomme(u"LAMBERT"_s, u"Élise"_s).matricule(u"212-04127-38"_s).enClasse(u"P3"_s, u"A"_s);
    base.Sql(
        u"UPDATE ELEVES SET DATE_NAISSANCE = '2010-03-14', NOM_RESPONSABLE = 'LAMBERT', "
        "PRENOM_RESPONSABLE = 'Nathalie', ADRESSE = 'Rue des Tanneurs', NUMERO = '12', "
        "CODE_POSTAL = 5000, LOCALITE = 'Namur', NOM_RESPONSABLE2 = 'COLLIN', CODE_POSTAL2 = 0, "
        "NUM_COMPTE = 'BE71 0961 2345 6769', NOM_TITULAIRE_COMPTE = 'LAMBERT N.', "
        "FLG_PARENT_SEPARE = 1, FLG_IMPOT_RESPONS2 = 1 WHERE ELEVE_ID = "_s +
        QString::number(rose.Id));
    rose.scan(Garderie, u"2016-10-03"_s, u"07:32"_s).scan(Garderie, u"2016-10-04"_s, u"07:40"_s);
    rose.scan(Garderie, u"2016-10-03"_s, u"12:15"_s).scan(Garderie, u"2016-10-03"_s, {}, u"16:48"_s);
    rose.scan(Garderie, u"2016-10-05"_s, u"14:00"_s, u"15:10"_s).scan(Etude, u"2016-10-04"_s, u"15:45"_s);
    rose.scan(Repas, u"2016-10-04"_s, u"12:00"_s).scan(Soupe, u"2016-10-04"_s, u"12:00"_s);
    rose.scan(Garderie, u"2016-11-07"_s, u"07:30"_s).scan(Garderie, u"2017-01-09"_s, u"07:30"_s);
    rose.doit(ecole.frais(u"Classes de mer"_s, u"185"_s, 2), u"50"_s);
    rose.doit(ecole.frais(u"Photocopies"_s, u"25"_s, 9), u"25"_s);
    rose.paie(u"30"_s, 11, 1, u"Acompte"_s);
    rose.doit(ecole.frais(u"Stage"_s, u"3"_s, 10, u"service"_s));
    rose.doit(ecole.frais(u"Voyage"_s, u"400"_s, 5, u"previsionnel"_s));
    rose.mois(11, u"1"_s).mois(1, u"0.40"_s);
    rose.marque(1, 9).marque(3, 1);
    for (const int mois : kMoisScolaires) rose.marque(2, mois);
    monde.Contexte.Assistant = &assistant;
  }
  /// The school on display, the screen open on that pupil, as the main window opens it.
  TFrmSignaletique& Ouvrir(const TEleveEssai& eleve) {
    Globals = {};
    monde.Essai.Charger();
    ecran = std::make_unique<TFrmSignaletique>(monde.Contexte);
    ecran->Montrer();
    Choisir(eleve.Id);
    return *ecran;
  }
  void Choisir(int eleve) {
    Globals.EleveCourant = Globals.Eleves->TrouverParId(eleve);
    if (Globals.EleveCourant) Globals.ClasseCourante = Globals.EleveCourant->Classe;
    EXPECT_TRUE(Diffuser(TCodeMessage::EleveChange, *ecran));
  }

  TEleveEssai rose = ecole.unEleve();
  TEleveEssai vide = ecole.unEleve().enClasse(u"P3"_s, u"A"_s);
  TEcranEssai monde{base};
  TAssistant assistant;
  std::unique_ptr<TFrmSignaletique> ecran;
};
