#include "app/commandes.h"

#include <QFile>

#include "app/csv.h"
#include "core/calendrier_scolaire.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "pupils/service.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"

namespace {

int Creer(TSession& session) {
  if (session.Connecter()) return 0;
  session.Base.CreerTables();
  session.Dialogues.Information(QStringLiteral("Votre base de données est à jour !"));
  return 0;
}

int Parametre(TSession& session) {
  session.Connecter();
  TParametres parametres(session.Base);
  const int id = StrToInt(session.Arguments[0]);
  if (session.Arguments.size() > 1) {
    parametres.SetParametre(id, session.Arguments[1]);
    parametres.Save();
  }
  TCsv::EcrireLigne(parametres.GetParametre(id));
  return 0;
}

int Registre(TSession& session) {
  session.Ouvrir();
  TImportRegistre import(session.Controleur);
  session.Dialogues.Oui = session.Options.isSet(QStringLiteral("cloturer"));
  if (!import.Etape1(session.Arguments[0])) {
    session.Dialogues.Message(
        import.NombreEleves() < TImportRegistre::kElevesMinimum
            ? QStringLiteral(
                  "Le fichier ne compte que %1 élève(s) : il en faut au moins %2. Rien n'a été transféré.")
                  .arg(import.NombreEleves())
                  .arg(TImportRegistre::kElevesMinimum)
            : QStringLiteral("L'année scolaire n'est pas clôturée : rien n'a été transféré."));
    return 1;
  }
  const TBilanRegistre bilan = import.Etape2();
  TCsv csv({QStringLiteral("lignes"), QStringLiteral("crees"), QStringLiteral("modifies")});
  csv.Ligne({QString::number(bilan.Lignes), QString::number(bilan.Crees), QString::number(bilan.Modifies)});
  return 0;
}

QString DateIso(TDateTime date) { return DateVersQt(date).toString(Qt::ISODate); }

QStringList LignePresence(const QString& etat, const QString& matricule, const TPresence& presence) {
  return {etat,
          matricule,
          DateIso(presence.DateReleve),
          QString::number(static_cast<int>(presence.TypePresence)),
          FormatHeureCourte(presence.HeureEntree),
          FormatHeureCourte(presence.HeureSortie)};
}

int Presences(TSession& session) {
  session.Ouvrir();
  TImportPresences import(session.Controleur);
  import.ImporterFichier(session.Arguments[0]);
  {
    TCsv csv(QStringLiteral("etat;matricule;date;type;entree;sortie").split(u';'));
    for (const auto& bon : import.Bons())
      csv.Ligne(
          LignePresence(QStringLiteral("bon"), Globals.Eleves->TrouverParId(bon->EleveId)->Matricule, *bon));
    for (const TAnomalie& a : import.Anomalies()) {
      if (a.Presence)
        csv.Ligne(LignePresence(QStringLiteral("sans_tarif"), a.Matricule, *a.Presence));
      else
        csv.Ligne({QStringLiteral("inconnu"), a.Matricule, DateIso(a.Date), QString::number(a.TypePresence),
                   FormatHeureCourte(a.Entree), FormatHeureCourte(a.Sortie)});
    }
  }
  import.Etape2();
  return 0;
}

struct TServiceCsv {
  const char* code;
  TService service;
};

constexpr TServiceCsv kServices[] = {{"matin", TService::Matin}, {"midi", TService::Midi},
                                     {"soir", TService::Soir},   {"mercredi", TService::Mercredi},
                                     {"etude", TService::Etude}, {"repas", TService::Repas},
                                     {"soupe", TService::Soupe}};

int Couts(TSession& session) {
  const int mois = session.Mois();
  session.Ouvrir();
  const TPeriode periode = BornesMois(mois, Globals.Eleves->AnneeScolaire);
  TCsv csv(QStringLiteral("eleve_id;service;montant").split(u';'));
  for (const TEleve& eleve : *Globals.Eleves) {
    const auto ligne = [&](const QString& service, Currency montant) {
      csv.Ligne({QString::number(eleve.Id), service, FormatQuatreDecimales(montant)});
    };
    TLignesService lignes;
    for (const TServiceCsv& service : kServices)
      ligne(QString::fromLatin1(service.code), eleve.CoutService(service.service, periode, lignes));
    ligne(QStringLiteral("total"), eleve.TotalServices(periode));
  }
  return 0;
}

int Solde(TSession& session) {
  session.Ouvrir();
  TCsv csv(QStringLiteral("eleve_id;frais;services;total").split(u';'));
  for (TEleve& eleve : *Globals.Eleves)
    csv.Ligne({QString::number(eleve.Id), FormatQuatreDecimales(eleve.Solde(true, false)),
               FormatQuatreDecimales(eleve.Solde(false, true)),
               FormatQuatreDecimales(eleve.Solde(true, true))});
  return 0;
}

}  // namespace

bool TSession::Connecter() const {
  const QString serveur = Options.value(QStringLiteral("serveur")).trimmed();
  Base.ServerName = serveur;
  if (serveur.isEmpty()) Base.ReadServerName();
  if (Base.ServerName.trimmed().isEmpty())
    throw Exception(
        QStringLiteral("Aucun serveur de données n'est connu sur cet ordinateur : indiquez-le avec --serveur "
                       "(un nom de serveur, « local », ou le chemin d'un fichier .fdb)."));
  const QString fichier = Base.FichierLocal();
  const bool nouveau = !fichier.isEmpty() && !QFile::exists(fichier);
  Base.Connecter();
  if (nouveau) Dialogues.Information(QStringLiteral("La base de données « %1 » est créée.").arg(fichier));
  return nouveau;
}

void TSession::Ouvrir() const {
  Connecter();
  Controleur.ChargerParametres();
  const QString annee = Options.value(QStringLiteral("annee"));
  Controleur.ChargerAnnee(annee.isEmpty() ? Globals.AnneeScolaire : StrToInt(annee));
}

int TSession::Mois() const {
  const int mois = StrToInt(Option(QStringLiteral("mois")));
  if (mois < 1 || mois > 12) throw Exception(QStringLiteral("Le mois est un nombre de 1 à 12."));
  return mois;
}

QString TSession::Option(const QString& nom) const {
  if (!Options.isSet(nom)) throw Exception(QStringLiteral("L'option --%1 manque.").arg(nom));
  return Options.value(nom);
}

const std::vector<TCommande>& Commandes() {
  static const std::vector<TCommande> commandes = {
      {"creer", 0, 0, "creer", Creer},
      {"parametre", 1, 2,
       "parametre ID [VALEUR]   (une valeur qui commence par un tiret : parametre -- ID VALEUR)", Parametre},
      {"registre", 1, 1, "registre FICHIER [--cloturer]", Registre},
      {"presences", 1, 1, "presences FICHIER", Presences},
      {"couts", 0, 0, "couts --mois M", Couts},
      {"solde", 0, 0, "solde", Solde},
      {"document", 1, 1,
       "document TITRE (--mois M | --du jj/mm/aaaa --au jj/mm/aaaa | --annee-scolaire) "
       "(--tous | --eleves ID,ID | --classes NOM,NOM) [--date-paiement jj/mm/aaaa] "
       "[--pdf FICHIER] [--json FICHIER]",
       CommandeDocument},
  };
  return commandes;
}
