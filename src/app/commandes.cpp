#include "app/commandes.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include "app/sortie_documents.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "documents/periode.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

/// What every command takes.
constexpr const char* kOptionsCommunes = "--serveur S --annee A --oui --aide";

/// The options that a usage names; true for one that has a value.
QMap<QString, bool> OptionsDe(const char* usage) {
  static const QRegularExpression motif(u"--([a-z][a-z-]*)( [\\w/,]+)?"_s,
                                        QRegularExpression::UseUnicodePropertiesOption);
  QMap<QString, bool> options;
  for (auto trouve = motif.globalMatch(QString::fromUtf8(usage)); trouve.hasNext();) {
    const QRegularExpressionMatch option = trouve.next();
    options.insert(option.captured(1), option.hasCaptured(2));
  }
  return options;
}

}  // namespace

bool TSession::Connecter(bool creer) const {
  const QString serveur = Options.value(u"serveur"_s).trimmed();
  Base.ServerName = serveur;
  if (serveur.isEmpty()) Base.ReadServerName();
  if (Base.ServerName.trimmed().isEmpty())
    throw Exception(
        u"Aucun serveur de données n'est connu sur cet ordinateur : indiquez-le avec --serveur "
        "(un nom de serveur, « local », ou le chemin d'un fichier .fdb)."_s);
  const QString fichier = Base.FichierLocal();
  const bool nouveau = !fichier.isEmpty() && !QFile::exists(fichier);
  if (nouveau && !creer)
    throw Exception(
        u"Aucune école ne se trouve à cet endroit, et rien n'y a été créé : « %1 »."_s.arg(fichier));
  VerifierFichiers(*this);
  Base.Connecter();
  if (nouveau) Dialogues.Information(u"La base de données « %1 » est créée."_s.arg(fichier));
  return nouveau;
}

void TSession::Ouvrir() const {
  Connecter();
  Controleur.ChargerParametres();
  const QString annee = Options.value(u"annee"_s);
  Controleur.ChargerAnnee(annee.isEmpty() ? Globals.AnneeScolaire : StrToInt(annee));
}

QString TSession::Option(const QString& nom) const {
  if (!A(nom)) throw Exception(u"L'option --%1 manque."_s.arg(nom));
  return Options.value(nom);
}

QString TSession::UneSeule(const QStringList& noms) const {
  QStringList donnees;
  for (const QString& nom : noms)
    if (A(nom)) donnees += nom;
  if (donnees.size() != 1) throw Exception(u"Donnez une seule des options --%1."_s.arg(noms.join(u", --"_s)));
  return donnees[0];
}

TDateTime TSession::Date(const QString& option) const { return StrToDate(Option(option)); }

TPeriode TSession::LirePeriode() const { return {Date(u"du"_s), Date(u"au"_s)}; }

int TSession::Mois() const {
  const int mois = StrToInt(Option(u"mois"_s));
  if (mois < 1 || mois > 12) throw Exception(u"Le mois est un nombre de 1 à 12."_s);
  return mois;
}

TPeriode TSession::Periode() const {
  const int annee = Globals.Eleves->AnneeScolaire;
  const QString choix = UneSeule({u"mois"_s, u"du"_s, u"annee-scolaire"_s});
  if (A(u"au"_s) && choix != u"du") throw Exception(u"L'option --au demande --du."_s);
  if (choix == u"du") return LirePeriode();
  if (choix == u"annee-scolaire") return BornesAnnee(annee);
  return BornesMois(Mois(), annee);
}

TEleve& TSession::Eleve(const QString& numero) const {
  TEleve* eleve = Globals.Eleves->TrouverParId(StrToInt(numero));
  if (eleve == nullptr) throw Exception(u"Il n'y a pas d'élève n° %1 cette année-là."_s.arg(numero));
  return *eleve;
}

QString TCommandeLot::Ligne() const {
  return QString(QString::fromUtf8(Nom) + u' ' + QString::fromUtf8(Usage)).trimmed();
}

bool TCommandeLot::Prend(const QString& option) const {
  return OptionsDe(Usage).contains(option) || OptionsDe(kOptionsCommunes).contains(option);
}

const std::vector<TCommandeLot>& Commandes() {
  static const std::vector<TCommandeLot> commandes = [] {
    std::vector<TCommandeLot> toutes;
    for (const auto famille : {CommandesBase(), CommandesEcole(), CommandesDocuments(), CommandesBanque(),
                               CommandesStatistiques(), CommandesRepas(), CommandesTablette()})
      toutes.insert(toutes.end(), famille.begin(), famille.end());
    return toutes;
  }();
  return commandes;
}

const TCommandeLot* TrouverCommande(const QStringList& mots) {
  const QString debut = mots.join(u' ') + u' ';
  for (const TCommandeLot& commande : Commandes())
    if (debut.startsWith(QString(QString::fromUtf8(commande.Nom) + u' '))) return &commande;
  return nullptr;
}

void DeclarerOptions(QCommandLineParser& options) {
  QMap<QString, bool> toutes = OptionsDe(kOptionsCommunes);
  for (const TCommandeLot& commande : Commandes()) toutes.insert(OptionsDe(commande.Usage));
  for (const auto& [nom, avecValeur] : toutes.asKeyValueRange())
    options.addOption({nom, {}, avecValeur ? u"valeur"_s : QString()});
}

QString OptionEtrangere(const TCommandeLot& commande, const QCommandLineParser& options) {
  for (const QString& nom : options.optionNames())
    if (!commande.Prend(nom)) return nom;
  return {};
}
