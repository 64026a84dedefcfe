// Meals: the day of the kitchen and the tickets of a class beside five years of rows, and the tablet's taps.
#include <QDir>
#include <QSettings>
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "ui/principal/programme.h"
#include "workflows/jour_cuisine.h"
#include "workflows/transfert_repas.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kAnnees = 5;
constexpr int kTours = 15;
constexpr int kTaps = 2000;

/// A ticket and an order of each pupil on each of 180 days; the last ten tickets of a year are not used.
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
                     u"-09-15'), IIF(J.N < 170, " % jour % u", NULL), 2.6, 1" % fin)
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

void MesurerTaps(const QTemporaryDir& dossier) {
  const QString tablette = dossier.filePath(u"tablette"_s);
  QDir().mkpath(tablette);
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, tablette);
  TSilence silence;
  CopierEleves(TFichiersTablette(reglages), false, silence);
  TServiceHorsLigne service(reglages, silence);
  std::vector<double> premiers, derniers;
  int tap = 0;
  for (TDateTime jour = EncodeDate(TEcole::kAnnee, 10, 3); tap < kTaps; ++jour)
    for (const TEleve& eleve : service.Eleves()) {
      const double duree = Duree([&] { service.Toucher(eleve, jour); });
      if (tap < 100) premiers.push_back(duree);
      if (tap >= kTaps - 100 && tap < kTaps) derniers.push_back(duree);
      if (++tap == kTaps) break;
    }
  Barre("2,000th untransferred tap / the first", Mediane(derniers) / Mediane(premiers), 2.0, true);
  std::fprintf(stderr, "# first tap %.2f ms, 2,000th %.2f ms\n", 1e3 * Mediane(premiers),
               1e3 * Mediane(derniers));
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
