// Meals: the day of the kitchen and the tickets of a class beside five years of rows, and the tablet's taps.
#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/query_internal.h"
#include "ui/principal/programme.h"
#include "workflows/jour_cuisine.h"
#include "workflows/transfert_repas.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kAnnees = 5;
constexpr int kTours = 41;
constexpr int kTaps = 2000;

/// A ticket and an order of each pupil on each of 180 days; the last ten tickets of the year on display are
/// not used yet.
void RemplirAnnee(TDataModule1& base, int annee) {
  const QString jours =
      u"WITH RECURSIVE J (N) AS (SELECT 0 FROM RDB$DATABASE UNION ALL SELECT N + 1 FROM J WHERE N < 179) "
      "SELECT %1 + E.ELEVE_ID * 1000 + J.N, E.ELEVE_ID, "_s.arg((annee - 2000) * 1'000'000);
  const QString jour = u"DATEADD(DAY, J.N, DATE '%1-09-15')"_s.arg(annee);
  const QString fin = u" FROM ELEVES E CROSS JOIN J"_s;
  TQueryInternal(base,
                 u"INSERT INTO TICKET (TICKET_ID, ELEVE_ID, DATE_ACHAT, DATE_UTILISATION, VALEUR, "
                 "TYPE_PAIEMENT) " %
                     jours % u"DATEADD(DAY, J.N / 20 * 20, DATE '" % QString::number(annee) %
                     u"-09-15'), IIF(J.N < " % QString::number(annee == TEcole::kAnnee ? 170 : 180) % u", " %
                     jour % u", NULL), 2.6, 1" % fin)
      .Executer();
  TQueryInternal(base, u"INSERT INTO COMMANDE (COMMANDE_ID, ELEVE_ID, DATE_COMMANDE, FLG_REPAS) " % jours %
                           jour % u", 1" % fin)
      .Executer();
}

/// What one look costs, read afresh.
double Mesurer(const std::function<void()>& regarder) {
  std::vector<double> durees;
  for (int i = 0; i < kTours; ++i) {
    Globals.Eleves->LibererCommandes();
    durees.push_back(Duree(regarder));
  }
  return Mediane(durees);
}

double MesurerCuisine() {
  return Mesurer([] {
    if (JourDeCuisine(*Globals.Eleves, EncodeDate(TEcole::kAnnee, 11, 22)).Repas == 0)
      throw Exception(u"La cuisine n'a rien à préparer."_s);
  });
}

double MesurerTickets(TFrmMain& main) {
  Globals.ClasseCourante = &Globals.Eleves->GetClasse(0);
  main.Executer(TGestionnaire::btnTicketClick);
  TForm* ecran = main.Panneau.Courante();
  if (ecran == nullptr) throw Exception(u"L'écran des tickets ne s'est pas ouvert."_s);
  return Mesurer([&] {
    ecran->RecevoirMessage({TCodeMessage::ClasseChange, {}});
    QCoreApplication::processEvents();
  });
}

/// A tablet in a folder of its own, with so many meals that wait.
std::unique_ptr<TServiceHorsLigne> Tablette(const QString& dossier, int attentes, TSilence& silence) {
  QDir().mkpath(dossier);
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, dossier);
  const TFichiersTablette fichiers(reglages);
  CopierEleves(fichiers, false, silence);
  QByteArray lignes;
  for (int i = 0; i < attentes; ++i)
    lignes += LigneRepas(u"x-%1"_s.arg(i), EncodeDate(TEcole::kAnnee, 10, 3)) + '\n';
  EcrireFichier(fichiers.Repas, lignes);
  return std::make_unique<TServiceHorsLigne>(reglages, silence);
}

/// In turns, so that a busy disk slows both.
void MesurerTaps(const QTemporaryDir& dossier) {
  TSilence silence;
  const std::unique_ptr<TServiceHorsLigne> services[] = {
      Tablette(dossier.filePath(u"vide"_s), 0, silence),
      Tablette(dossier.filePath(u"pleine"_s), kTaps - 1, silence)};
  const TDateTime jour = EncodeDate(TEcole::kAnnee, 10, 4);
  std::vector<double> durees[2];
  for (int tour = 0; tour < 200; ++tour)
    for (int i = 0; i < 2; ++i) {
      const TEleve& eleve = services[i]->Eleves()[0];
      durees[i].push_back(Duree([&] { services[i]->Toucher(eleve, jour); }));
      services[i]->Toucher(eleve, jour);
    }
  Barre("2,000th untransferred tap / the first", Mediane(durees[1]) / Mediane(durees[0]), 2.0, true);
  std::fprintf(stderr, "# first tap %.2f ms, 2,000th %.2f ms\n", 1e3 * Mediane(durees[0]),
               1e3 * Mediane(durees[1]));
}

}  // namespace

void MesurerRepas(TEcole& ecole, const QTemporaryDir& dossier) {
  for (const auto portee : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, portee, dossier.path());
  TReglagesPoste().Ecrire(TRacine::Utilisateur, u"Serveur"_s, ecole.Base().ServerName);
  const THorloge horloge;
  Programme programme(horloge);
  programme.Fenetre.Demarrer();
  QCoreApplication::processEvents();
  double cuisine[2], tickets[2];
  for (int tour = 0; tour < 2; ++tour) {
    for (int annee = tour == 0 ? 0 : 1; annee < (tour == 0 ? 1 : kAnnees); ++annee)
      RemplirAnnee(ecole.Base(), TEcole::kAnnee - annee);
    cuisine[tour] = MesurerCuisine();
    tickets[tour] = MesurerTickets(programme.Main);
  }
  Barre("kitchen day beside five years of orders / beside one", cuisine[1] / cuisine[0], 1.5, true);
  Barre("tickets of a class with five years of them / with one", tickets[1] / tickets[0], 1.5, true);
  std::fprintf(stderr, "# kitchen day %.1f ms, tickets of a class %.1f ms\n", 1e3 * cuisine[1],
               1e3 * tickets[1]);
  MesurerTaps(dossier);
  programme.Fenetre.close();
  QCoreApplication::processEvents();
  Globals = {};
}
