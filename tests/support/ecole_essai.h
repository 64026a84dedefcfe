#pragma once
#include "support/base_essai.h"
#include "support/valeurs.h"

/// Presence kinds and tariff values by name, so that a test reads like a sentence.
namespace Essai {
enum { Garderie = 1, Repas = 2, Soupe = 3, Etude = 4 };
enum { Matin = 1, Soir = 2, Mercredi = 3, FamilleEtude = 4, FamilleRepas = 5, FamilleSoupe = 6, Midi = 7 };
enum { TousLesJours = 6, LundiMardiJeudiVendredi = 7 };
enum { Forfait = 1, Heure = 2, DemiHeure = 3, QuartHeure = 4, Minute = 5 };
enum { ScanPresence = 1, ScanEntree = 2, ScanSortie = 3 };
}  // namespace Essai

class TEcoleEssai;

/// A pupil being described; each word writes its row at once.
class TEleveEssai {
 public:
  TEleveEssai(TEcoleEssai& ecole, int id) : ecole_(ecole), Id(id) {}
  TEleveEssai& nomme(const QString& nom, const QString& prenom);
  TEleveEssai& matricule(const QString& texte);
  /// Enrolled in the school's year; `site` may be empty.
  TEleveEssai& enClasse(const QString& classe, const QString& sousClasse, const QString& site = {});
  /// Sets a flag column of ELEVES to 1: "FLG_2E_ENFANT".
  TEleveEssai& avec(const QString& drapeau);
  /// A presence; dates "2016-10-03", times "07:30" or "" for none.
  TEleveEssai& scan(int type, const QString& date, const QString& entree, const QString& sortie = {});
  /// A month marker of kind 1 to 3, month 1 to 12 of the school's year.
  TEleveEssai& marque(int type, int mois);
  /// A catalogue fee owed, with what was paid on it.
  TEleveEssai& doit(int frais, const QString& verse = u"0"_s);
  /// A free payment; family 0 general, 1 fees, 2 services.
  TEleveEssai& paie(const QString& montant, int mois, int famille, const QString& libelle);
  /// A row of PAIEMENTS.
  TEleveEssai& mois(int mois, const QString& montant, int type = 7);
  /// Follows an activity on weekdays "12345" (Monday 1).
  TEleveEssai& suit(int activite, const QString& jours);

 private:
  TEleveEssai& poser(const QString& colonne, const QString& valeur);
  TEleveEssai& ajouter(const QString& table, const QString& colonnes, const QStringList& valeurs);
  TEcoleEssai& ecole_;

 public:
  int Id;
};

/// A sample school written straight into the database of a test, before anything loads it.
class TEcoleEssai {
 public:
  explicit TEcoleEssai(TBaseEssai& base, int annee = 2016) : Base(base), Annee(annee) {}

  /// A new pupil, called "Eleve1 Prenom1" and so on, register number "1-1".
  TEleveEssai unEleve();
  void parametre(int id, const QString& valeur);
  /// Several: "30=1|101=2,20".
  void parametres(const QString& tous);
  /// A tariff row; times "07:00". Returns its key.
  int tarif(int famille, int jour, const QString& debut, const QString& fin, int forfait, const QString& cout,
            int scan, const QString& cout2e = u"0"_s);
  int activite(const QString& debut, const QString& fin, const QString& du = u"2016-09-01"_s,
               const QString& au = u"2017-06-30"_s);
  /// A catalogue fee; flags among "previsionnel", "non_obligatoire", "service", joined by spaces.
  int frais(const QString& libelle, const QString& cout, int mois, const QString& drapeaux = {});

  /// A movement of the bank of that day; returns its key.
  int mouvement(const QString& donneur, const QString& date, const QString& montant,
                const QString& compte = {}, const QString& communication = {});

  /// A row with the next key of its table in the first column; the other values in SQL. Returns the key.
  int Ajouter(const QString& table, const QString& colonnes, const QStringList& valeurs);

  TBaseEssai& Base;
  const int Annee;
};

/// A test with a database and the school in it.
struct TEssaiEcole : testing::Test {
  TBaseEssai base;
  TEcoleEssai ecole{base};
};
