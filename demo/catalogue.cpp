#include "demo/catalogue.h"

#include <algorithm>

#include "demo/calendrier.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Currency Centimes(int centimes) { return Currency::Brut(std::int64_t{100} * centimes); }

using enum TParam;

struct TParametre {
  TParam Param;
  const char16_t* Valeur;
};

constexpr TParametre kParametres[] = {
    {NomEcole, u"École fondamentale libre de Brumeval"},
    {RueEcole, u"rue du Vieux Moulin 27"},
    {CodePostalEcole, u"5537"},
    {LocaliteEcole, u"Brumeval"},
    {TelephoneEcole, u"082 61 00 00"},
    {ModuleRepas, u"1"},
    {NomImplantation, u"Implantation du Centre"},
    {CommunicationFacture, u"Communication à mentionner sur votre virement : [ComStructParFacture]"},
    {CompteBanque, u"BE68 5390 0754 7034"},
    {HeureDebutLMJV, u"8"},
    {MinuteDebutLMJV, u"30"},
    {HeureFinLMJV, u"15"},
    {MinuteFinLMJV, u"25"},
    {HeureDebutMercredi, u"8"},
    {MinuteDebutMercredi, u"30"},
    {HeureFinMercredi, u"12"},
    {MinuteFinMercredi, u"10"},
    {EmailEcole, u"direction@ecole-brumeval.example"},
    {NomDirection, u"DELVAUX"},
    {PrenomDirection, u"Bénédicte"},
    {TitreDirection, u"Directrice"},
    {SansServices, u"0"},
    {ModeProvision, u"0"},
    {CommunicationFraisEffectifs,
     u"Ce relevé reprend les frais scolaires de la période et leur caractère obligatoire ou facultatif.\r\n"
     u"Pour toute question, le secrétariat est ouvert chaque jour de 8h15 à 9h30 et de 15h à 16h."},
    {TypeCodeBarre, u"1"},
    {GarderieUnique, u"0"},
    {DatePaiement, u"1"},
    {CalculAttestation, u"4"},
    {ModuleRepas, u"1"},
    {BalanceAnnuelle, u"1"},
    {VirementNom, u"ECOLE LIBRE DE BRUMEVAL"},
    {VirementIBAN, u"BE68539007547034"},
    {VirementBIC, u"GKCCBEBB"},
    {VirementRue, u"RUE DU VIEUX MOULIN 27"},
    {VirementCodePostal, u"5537"},
    {VirementLocalite, u"BRUMEVAL"},
    {ProvisionGarderie, u"40"},
    {ProvisionFrais, u"25"},
    {TypeCompteBancaire, u""},
    {RepasMaternel, u"3,50"},
    {RepasPrimaire, u"3,90"},
    {TitreSoirEtudes, u"1"},
    {ModeDeduction, u"3"},
    {RepasPersonnel, u"4,50"},
    {DeductionEtude, u"1"},
    {FactureDebiteurs, u"0"},
    {PlusieursImplantations, u"1"},
};

struct TTarif {
  int Famille, Jour;
  const char16_t *Debut, *Fin;
  int Forfait, Scan, Centimes, Centimes2eEnfant;
};

// Families: 1 morning, 2 evening, 3 Wednesday, 4 study, 5 meal, 6 soup, 7 midday. Days: 3 Wednesday, 6 all,
// 7 all but Wednesday. Charging: 1 by period, 2 by the hour. Scan: 1 presence, 2 on arrival, 3 on leaving.
// The first Wednesday row is by period, so that an exit scanned as an entry costs little; the evening one is
// by the hour, for the deduction of the study to have an effect.
constexpr TTarif kTarifs[] = {
    {1, 6, u"06:30", u"07:00", 1, 2, 50, 40},   {1, 6, u"07:00", u"08:00", 1, 2, 100, 80},
    {7, 7, u"12:00", u"13:30", 1, 1, 50, 40},   {2, 7, u"16:00", u"18:15", 2, 3, 130, 100},
    {3, 3, u"12:10", u"14:00", 1, 3, 200, 160}, {3, 3, u"14:00", u"18:00", 2, 3, 100, 80},
    {4, 7, u"15:30", u"16:30", 1, 3, 120, 100}, {5, 6, u"11:30", u"13:30", 1, 1, 390, 390},
    {6, 6, u"11:30", u"13:30", 1, 1, 70, 70},
};

struct TActivite {
  const char16_t *Libelle, *Debut, *Fin;
  int Jour;
  int NiveauBas, NiveauHaut;
};

constexpr TActivite kActivites[] = {
    {u"Mini-foot", u"16:00", u"17:00", 1, 4, 8},
    {u"Échecs", u"16:00", u"17:00", 3, 5, 8},
    {u"Éveil musical", u"16:00", u"16:45", 0, 2, 4},
    {u"Atelier du mercredi : initiation au néerlandais", u"13:30", u"15:00", 2, 5, 8},
};

struct TFrais {
  const char16_t* Libelle;
  int Centimes, Mois;
  int NiveauBas, NiveauHaut;
  int Part;      ///< thousandths of these pupils, or of the families when `ParFamille`
  int Comptant;  ///< thousandths of the debtors who bring the money at once
  char Genre;    ///< 'O' compulsory, 'N' not, 'S' service, 'P' forecast
  bool ParFamille = false;
};

constexpr TFrais kFrais[] = {
    {u"Assurance scolaire", 620, 9, 0, 8, 1000, 0, 'O'},
    {u"Photocopies du premier trimestre", 1250, 9, 3, 8, 1000, 0, 'O'},
    {u"Fournitures de la section maternelle, premier trimestre", 1500, 9, 0, 2, 1000, 0, 'O'},
    {u"Cahiers et fournitures collectives", 2375, 9, 3, 8, 1000, 0, 'O'},
    {u"Journal de classe", 495, 9, 3, 8, 1000, 0, 'O'},
    {u"Location du casier", 500, 9, 7, 8, 1000, 0, 'O'},
    {u"Manuel de lecture « À petits pas »", 1860, 9, 3, 3, 1000, 0, 'O'},
    {u"Tenue de gymnastique", 1200, 9, 3, 3, 950, 100, 'O'},
    {u"Dictionnaire de poche", 990, 9, 5, 5, 800, 50, 'N'},
    {u"Abonnement « Bonjour », premier semestre", 3600, 9, 3, 5, 260, 0, 'N'},
    {u"Cotisation facultative au comité des parents", 1000, 9, 0, 8, 420, 700, 'N', true},
    {u"Piscine, octobre", 1400, 10, 3, 6, 1000, 0, 'O'},
    {u"Sortie au musée de la Vie rurale, transport en autocar compris", 1100, 10, 5, 6, 1000, 0, 'O'},
    {u"Activité sportive du 14 octobre", 350, 10, 3, 8, 1000, 0, 'O'},
    {u"Théâtre, spectacle du 21 octobre", 700, 10, 1, 4, 980, 0, 'O'},
    {u"Classe de dépaysement, premier acompte", 12000, 10, 7, 8, 960, 0, 'O'},
    {u"Photo de classe", 850, 10, 0, 8, 700, 850, 'N'},
    {u"Photo individuelle et fratrie", 1150, 10, 0, 8, 520, 850, 'N', true},
    {u"T-shirt de l'école, taille 128", 900, 10, 3, 4, 250, 800, 'N'},
    {u"Stage multisport de la Toussaint, première semaine, repas non compris", 7500, 10, 4, 8, 60, 0, 'N'},
    {u"Atelier du mercredi : initiation au néerlandais", 3000, 10, 5, 8, 60, 0, 'S'},
    {u"Piscine, novembre", 1050, 11, 3, 6, 1000, 0, 'O'},
    {u"Saint-Nicolas, collation et spectacle", 350, 11, 0, 2, 1000, 0, 'O'},
    {u"Théâtre « Le petit soldat »", 850, 11, 5, 8, 980, 0, 'O'},
    {u"Classe de dépaysement, deuxième acompte", 6000, 11, 7, 8, 960, 0, 'O'},
    {u"Galettes de la classe de mer", 1400, 11, 0, 8, 330, 900, 'N', true},
    {u"Piscine, décembre", 700, 12, 3, 6, 1000, 0, 'O'},
    {u"Calendrier de la classe", 600, 12, 0, 8, 400, 850, 'N'},
    {u"Photocopies du deuxième trimestre", 1250, 1, 3, 8, 1000, 0, 'O'},
    {u"Fournitures de la section maternelle, deuxième trimestre", 1200, 1, 0, 2, 1000, 0, 'O'},
    {u"Piscine, janvier", 1050, 1, 3, 6, 1000, 0, 'O'},
    {u"Classe de dépaysement, solde", 9000, 1, 7, 8, 960, 0, 'O'},
    {u"Abonnement « Bonjour », second semestre", 3600, 1, 3, 5, 240, 0, 'N'},
    {u"Piscine, février", 1050, 2, 3, 6, 1000, 0, 'O'},
    {u"Carnaval, masque et crêpes", 300, 2, 0, 3, 1000, 0, 'O'},
    {u"Atelier du mercredi : initiation au néerlandais, second semestre", 3000, 2, 5, 8, 60, 0, 'S'},
    {u"Piscine, mars", 1400, 3, 3, 6, 1000, 0, 'O'},
    {u"Sortie à la ferme pédagogique", 1250, 3, 0, 2, 970, 0, 'O'},
    {u"Muséum des sciences naturelles, entrée et train", 1580, 3, 7, 8, 970, 0, 'O'},
    {u"Photocopies du troisième trimestre", 1250, 4, 3, 8, 1000, 0, 'O'},
    {u"Fournitures de la section maternelle, troisième trimestre", 1200, 4, 0, 2, 1000, 0, 'O'},
    {u"Piscine, avril", 700, 4, 3, 6, 1000, 0, 'O'},
    {u"Vente de plants de printemps", 800, 4, 0, 8, 200, 900, 'N', true},
    {u"Piscine, mai", 1400, 5, 3, 6, 1000, 0, 'O'},
    {u"Journée sportive interécoles", 500, 5, 3, 8, 1000, 0, 'O'},
    {u"Fancy-fair, carte de boissons", 1000, 5, 0, 8, 300, 800, 'N', true},
    {u"Excursion de fin d'année, maternelle", 1300, 6, 0, 2, 970, 0, 'O'},
    {u"Excursion de fin d'année, primaire", 2150, 6, 3, 7, 970, 0, 'O'},
    {u"Voyage de fin de cycle à Bruxelles", 2800, 6, 8, 8, 980, 0, 'O'},
    {u"Livre souvenir de sixième", 1200, 6, 8, 8, 800, 600, 'N'},
    {u"Estimation : classe de mer du printemps prochain", 18500, 5, 4, 5, 1000, 0, 'P'},
};

const char16_t* const kGroupes[] = {u"Classe de dépaysement", u"Vente de galettes", u"Caisse du secrétariat"};

bool Debiteur(const TFrais& frais, const TEleveExemple& eleve, TTirage& tirage) {
  if (eleve.Niveau < frais.NiveauBas || eleve.Niveau > frais.NiveauHaut) return false;
  if (frais.ParFamille && eleve.Rang > 1) return false;
  const int annee = frais.Mois < 9 ? kAnneeExemple + 1 : kAnneeExemple;
  const QDate premier(annee, frais.Mois, 1);
  if (eleve.Depart < premier || eleve.Arrivee >= premier.addMonths(1)) return false;
  return tirage.Chance(frais.Part);
}

void InscrireAuxActivites(TEcoleExemple& ecole, TTirage& tirage) {
  for (std::size_t e = 0; e < ecole.Eleves.size(); ++e)
    for (std::size_t a = 0; a < std::size(kActivites); ++a) {
      const TActivite& activite = kActivites[a];
      const TEleveExemple& eleve = ecole.Eleves[e];
      const bool age = eleve.Niveau >= activite.NiveauBas && eleve.Niveau <= activite.NiveauHaut;
      if (age && !eleve.Radie && tirage.Chance(70))
        ecole.Inscriptions.push_back({static_cast<int>(e), static_cast<int>(a)});
    }
}

void PayerAuSecretariat(TEcoleExemple& ecole, int eleve, TTirage& tirage) {
  const TEleveExemple& fiche = ecole.Eleves[static_cast<std::size_t>(eleve)];
  for (const int mois : kMoisScolaires) {
    // June is settled line by line before the holidays, see below.
    if (mois == 6 || !tirage.Chance(800)) continue;
    const Currency montant = Currency::Euros(5 * tirage.Entier(4, 9));
    ecole.Paiements.push_back(
        {eleve, u"Paiement au secrétariat"_s, montant, mois, tirage.Chance(500) ? 2 : 0, 2});
  }
  if (!fiche.Radie) ecole.MoisPayes.push_back({eleve, 6});
}

void PaiementsDivers(TEcoleExemple& ecole, int eleve, TTirage& tirage) {
  const TEleveExemple& fiche = ecole.Eleves[static_cast<std::size_t>(eleve)];
  if (fiche.Niveau > 0 && tirage.Chance(90)) {
    const Currency montant = Centimes(5 * tirage.Entier(-300, 900));
    ecole.Paiements.push_back({eleve, u"Transfert de l'année scolaire 2015-2016"_s, montant, 9,
                               tirage.Choix(std::array{0, 1, 2}), -1});
  }
  if (fiche.Niveau >= 7 && tirage.Chance(150))
    ecole.Paiements.push_back({eleve, u"Paiement au secrétariat, classe de dépaysement"_s,
                               Currency::Euros(tirage.Choix(std::array{60, 120})), 10, 1, 0});
  if (fiche.Rang == 1 && tirage.Chance(60))
    ecole.Paiements.push_back(
        {eleve, u"Galettes vendues en famille"_s, Currency::Euros(7 * tirage.Entier(1, 3)), 11, 1, 1});
  // The last days of June bring many parents to the counter.
  if (ecole.Familles[static_cast<std::size_t>(fiche.Famille)].Payeur == TPayeur::Caisse)
    PayerAuSecretariat(ecole, eleve, tirage);
  else if (!fiche.Radie && tirage.Chance(100))
    ecole.MoisPayes.push_back({eleve, 6});
}

void MarquerMois(TEcoleExemple& ecole, int eleve, TTirage& tirage) {
  const TEleveExemple& fiche = ecole.Eleves[static_cast<std::size_t>(eleve)];
  const bool forfait = tirage.Chance(20);
  for (const int mois : kMoisScolaires) {
    if (fiche.Midi[0] == TMidi::Rentre) ecole.Marques.push_back({eleve, 1, mois});
    if (fiche.Etude) ecole.Marques.push_back({eleve, 2, mois});
    if (forfait) ecole.Marques.push_back({eleve, 3, mois});
  }
}

}  // namespace

void RemplirCatalogue(TEcoleExemple& ecole) {
  ecole.Sites = {{u"0451"_s, u"Centre"_s, u"Implantation du Centre"_s, u"rue du Vieux Moulin 27"_s, u"5537"_s,
                  u"Brumeval"_s, u"082 61 00 00"_s, u"DELVAUX"_s, u"Bénédicte"_s},
                 {u"0452"_s, u"Tilleuls"_s, u"Implantation des Tilleuls"_s, u"avenue des Tilleuls 112"_s,
                  u"5364"_s, u"Vesperval"_s, u"083 61 00 00"_s, u"HENROTTE"_s, u"Vinciane"_s}};
  for (const TParametre& p : kParametres) ecole.Parametres.push_back({p.Param, QString::fromUtf16(p.Valeur)});
  for (const TTarif& t : kTarifs)
    ecole.Tarifs.push_back({t.Famille, t.Jour, QString::fromUtf16(t.Debut), QString::fromUtf16(t.Fin),
                            t.Forfait, t.Scan, Centimes(t.Centimes), Centimes(t.Centimes2eEnfant)});
  for (const TActivite& a : kActivites)
    ecole.Activites.push_back({QString::fromUtf16(a.Libelle), QString::fromUtf16(a.Debut),
                               QString::fromUtf16(a.Fin), QDate(2016, 10, 3), QDate(2017, 5, 24), a.Jour});
  for (const char16_t* groupe : kGroupes) ecole.Groupes.push_back(QString::fromUtf16(groupe));
}

void AttribuerFrais(TEcoleExemple& ecole, TTirage& tirage) {
  for (const TFrais& frais : kFrais) {
    const int index = static_cast<int>(ecole.Frais.size());
    ecole.Frais.push_back({QString::fromUtf16(frais.Libelle), Centimes(frais.Centimes), frais.Mois,
                           frais.Genre == 'N', frais.Genre == 'P', frais.Genre == 'S'});
    for (std::size_t e = 0; e < ecole.Eleves.size(); ++e)
      if (Debiteur(frais, ecole.Eleves[e], tirage))
        ecole.LignesFrais.push_back({static_cast<int>(e), index, tirage.Chance(frais.Comptant)});
  }
}

void RemplirComptes(TEcoleExemple& ecole, TTirage& tirage) {
  InscrireAuxActivites(ecole, tirage);
  for (std::size_t e = 0; e < ecole.Eleves.size(); ++e) {
    PaiementsDivers(ecole, static_cast<int>(e), tirage);
    MarquerMois(ecole, static_cast<int>(e), tirage);
  }
}
