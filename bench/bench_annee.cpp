// The year load, and the pricing of a whole school.
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "application/donnees_annee.h"
#include "bench/chronometre.h"
#include "bench/ecole_bench.h"
#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "core/parametres.h"
#include "pupils/service.h"
#include "services/tarifs_garderies.h"

namespace {

constexpr int kAnnee = 2016;

/// Nobody to talk to: a message is a failure of the benchmark.
class TSilence : public IDialogues {
  void Message(const QString& texte) override { throw Exception(texte); }
  void Information(const QString&) override {}
  bool Confirmer(const QString&) override { return false; }
  std::optional<QString> Saisir(const QString&, const QString&, const QString&) override { return {}; }
  std::optional<QString> ChoisirFichier(const QString&, const QString&) override { return {}; }
  std::optional<QString> FichierAEnregistrer(const QString&, const QString&, const QString&) override {
    return {};
  }
  bool Reessayer(const TReessai&) override { return false; }
  void Progression(int, int, const QString&) override {}
  void TraiterEvenements() override {}
  void CurseurAttente(bool) override {}
};

/// "name;measured;bar;ok" or "...;short". `auPlus`: the bar is a ceiling.
void Barre(const char* nom, double mesure, double barre, bool auPlus) {
  const bool tenue = auPlus ? mesure <= barre : mesure >= barre;
  std::printf("%s;%.2f;%.1f;%s\n", nom, mesure, barre, tenue ? "ok" : "short");
}

/// Resident memory of this process, in MB.
double Memoire() {
  QFile statm(QStringLiteral("/proc/self/statm"));
  if (!statm.open(QIODevice::ReadOnly)) return 0.0;
  return statm.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6;
}

/// A school in a file of its own, with what a year load needs.
struct TEcole {
  TEcole(const QTemporaryDir& dossier, int eleves, int presences) : base(dialogues, reglages) {
    base.ServerName = dossier.filePath(QStringLiteral("bench%1.fdb").arg(eleves));
    base.Connecter();
    base.Deconnecter();
    base.EcrituresForcees(false);
    base.Connecter();
    RemplirEcole(base, eleves, presences);
    parametres = std::make_unique<TParametres>(base);
    tarifs = std::make_unique<TTarifsGarderies>(base);
  }
  std::unique_ptr<TDonneesAnnee> Charger() { return ChargerDonneesAnnee(base, kAnnee, *parametres, *tarifs); }

  TSilence dialogues;
  TReglagesPoste reglages;
  TDataModule1 base;
  std::unique_ptr<TParametres> parametres;
  std::unique_ptr<TTarifsGarderies> tarifs;
};

/// The rows of a year load, fetched and thrown away.
void LireLesRangees(TEcole& ecole) {
  for (const char* sql :
       {"SELECT * FROM ELEVES_CLASSES WHERE ANNEE_SCOLAIRE=2016",
        "SELECT * FROM ELEVES, ELEVES_CLASSES WHERE ANNEE_SCOLAIRE=2016 AND "
        "ELEVES.ELEVE_ID=ELEVES_CLASSES.ELEVE_ID "
        "ORDER BY CODE_IMPLANTATION, ELEVES_CLASSES.CLASSE, ELEVES_CLASSES.SOUS_CLASSE, NOM, PRENOM",
        "SELECT * FROM PRESENCES WHERE DATE_RELEVE >= '09/01/2016' AND DATE_RELEVE <= '06/30/2017' ORDER BY "
        "DATE_RELEVE, HEURE_ENTREE"}) {
    TCurseur ligne(ecole.base, QString::fromLatin1(sql));
    while (ligne.Suivant()) {
    }
  }
}

Currency ToutFacturer(const TDonneesAnnee& annee) {
  Currency total;
  TLignesService lignes;
  for (const TEleve& eleve : *annee.Eleves)
    for (const int mois : {9, 10, 11, 12, 1, 2, 3, 4, 5, 6})
      for (const TService service : kServices)
        total += eleve.CoutService(service, BornesMois(mois, kAnnee), lignes);
  return total;
}

/// The day-care amounts of a pupil's months, each by a walk over all the records of the school.
Currency FacturerEnMarchant(const TDonneesAnnee& annee, const TTarifsGarderies& tarifs, const TEleve& eleve) {
  Currency total;
  for (const int mois : {9, 10, 11, 12, 1, 2, 3, 4, 5, 6}) {
    const TPeriode periode = BornesMois(mois, kAnnee);
    for (const TTypeFamille famille :
         {TTypeFamille::Matin, TTypeFamille::Midi, TTypeFamille::Soir, TTypeFamille::Mercredi,
          TTypeFamille::Etude, TTypeFamille::Repas, TTypeFamille::Soupe})
      for (const TPresence& p : *annee.Presences) {
        if (p.EleveId != eleve.Id || p.DateReleve < periode.Premier || p.DateReleve > periode.Dernier)
          continue;
        const TClassement classement =
            tarifs.ChercheFamille(GroupeDe(p.TypePresence), p.HeureSortie, p.HeureEntree, p.DateReleve);
        if (classement.Famille != famille) continue;
        total +=
            tarifs.CoutPresence(famille, classement.Scan, eleve.Flg2eEnfant, p.HeureSortie, p.HeureEntree);
      }
  }
  return total;
}

void Mesurer(const QTemporaryDir& dossier) {
  TEcole ecole(dossier, 500, 250000);
  std::vector<double> nues, charges;
  double memoire = 0.0;
  std::unique_ptr<TDonneesAnnee> annee;
  for (int i = 0; i < 7; ++i) {
    nues.push_back(Duree([&] { LireLesRangees(ecole); }));
    annee.reset();
    const double avant = Memoire();
    charges.push_back(Duree([&] { annee = ecole.Charger(); }));
    if (i == 0) memoire = Memoire() - avant;
  }
  Barre("year load / bare fetch of the same rows", Mediane(charges) / Mediane(nues), 1.5, true);

  TEcole grande(dossier, 1000, 500000);
  const auto grandeAnnee = grande.Charger();
  std::vector<double> entiers, doubles;
  for (int i = 0; i < 9; ++i) {  // in turns, so that a busy machine slows both
    entiers.push_back(Duree([&] { ToutFacturer(*annee); }));
    doubles.push_back(Duree([&] { ToutFacturer(*grandeAnnee); }));
  }
  const double moteur = Mediane(entiers);
  constexpr int kEchantillon = 5;  // pupils; a walk costs the same for each
  const double marche = Duree([&] {
    for (int i = 0; i < kEchantillon; ++i)
      FacturerEnMarchant(*annee, *ecole.tarifs, (*annee->Eleves)[i * 97]);
  });
  Barre("plain walk / pricing seven services of every pupil and month", marche * 500 / kEchantillon / moteur,
        100.0, false);

  Barre("pricing 1,000 pupils and twice the records / 500 pupils", Mediane(doubles) / moteur, 2.2, true);
  std::printf("# year load %.3f s, bare fetch %.3f s, pricing %.3f s, memory of a year load %.0f MB\n",
              Mediane(charges), Mediane(nues), moteur, memoire);
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QTemporaryDir dossier;
  qputenv("FIREBIRD_LOCK", QFile::encodeName(dossier.path()));
  try {
    Mesurer(dossier);
  } catch (const Exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  return 0;
}
