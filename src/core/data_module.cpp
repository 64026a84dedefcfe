#include "core/data_module.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>

#include "core/exceptions.h"
#include "core/firebird.h"
#include "core/firebird_interne.h"
#include "core/schema.h"
#include "core/schema_script.h"

using namespace Qt::StringLiterals;

namespace {

const QString kServeur = u"Serveur"_s;
const QString kBase = u"PRESENCES"_s;
const QString kUtilisateur = u"sysdba"_s;
const QString kMotDePasse = u"corvusnet"_s;

/// The embedded engine keeps its locks in a folder that the whole machine would share; a private
/// one leaves the next user of the machine out of nothing.
void PreparerVerrous() {
  if (!qEnvironmentVariableIsEmpty("FIREBIRD_LOCK")) return;
  const QString dossier = DossierDonnees() + u"/verrous"_s;
  QDir().mkpath(dossier);
  QFile::setPermissions(dossier, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  qputenv("FIREBIRD_LOCK", QFile::encodeName(dossier));
}

#ifdef Q_OS_UNIX
/// The embedded engine takes the interrupt signals of the process for itself, and then a program that
/// waits cannot be stopped any more. It gets them back once the connection is open: every row that was
/// stored stays, wherever the program ends.
class TSignaux {
 public:
  TSignaux() {
    for (std::size_t i = 0; i < std::size(kSignaux); ++i) sigaction(kSignaux[i], nullptr, &avant_[i]);
  }
  void Rendre() const {
    for (std::size_t i = 0; i < std::size(kSignaux); ++i) sigaction(kSignaux[i], &avant_[i], nullptr);
  }

 private:
  static constexpr int kSignaux[] = {SIGINT, SIGTERM};
  struct sigaction avant_[std::size(kSignaux)] = {};
};
#else
struct TSignaux {
  void Rendre() const {}
};
#endif

/// As they stood before the engine was first used.
const TSignaux& SignauxDuProgramme() {
  static const TSignaux signaux;
  return signaux;
}

}  // namespace

TDataModule1::TDataModule1(IDialogues& dialogues, TReglagesPoste& reglages)
    : dialogues_(dialogues), reglages_(reglages) {
  PreparerVerrous();
  SignauxDuProgramme();
}

TDataModule1::~TDataModule1() { Deconnecter(); }

Firebird::TAttache& TDataModule1::Attache() const {
  if (!uniConnection1_) throw Exception(u"La connexion à la base de données n'est pas ouverte."_s);
  return *uniConnection1_;
}

void TDataModule1::Deconnecter() {
  compteurs_.reset();
  OublierLectures();
  uniConnection1_.reset();
}

void TDataModule1::ReadServerName(TRacine racine) { ServerName = reglages_.Lire(racine, kServeur); }

void TDataModule1::ReadServerName() {
  ReadServerName(TRacine::Machine);
  if (ServerName.trimmed().isEmpty()) ReadServerName(TRacine::Utilisateur);
}

void TDataModule1::WriteServerName(TRacine racine) { reglages_.Ecrire(racine, kServeur, ServerName); }

bool TDataModule1::CanWriteMachineKey() const { return reglages_.MachineInscriptible(); }

void TDataModule1::AskServerName() {
  QString invite = u"Veuillez indiquer ci-dessous le nom du serveur de données ou son adresse réseau :"_s;
  if (!CanWriteMachineKey())
    invite +=
        u"\nAttention : Afin de ne plus afficher ce message, veuillez exécuter cette opération avec un "
        u"compte "
        "administrateur"_s;
  const auto reponse = dialogues_.Saisir(
      {.Titre = u"Identification du Serveur de données"_s,
       .Invite = invite,
       .Valeur = ServerName,
       .Aide =
           u"Le nom « local » fait travailler ce poste seul, sans serveur : les données sont alors dans un "
           "fichier de cet ordinateur, créé à la première ouverture."_s,
       .Principal = u"&Se connecter à un serveur"_s,
       .Autre = u"&Travailler seul"_s,
       .ValeurAutre = u"local"_s});
  if (!reponse || reponse->trimmed().isEmpty()) return;
  KeepServerName(*reponse);
}

bool TDataModule1::AskDataFile() {
  const auto fichier =
      dialogues_.ChoisirFichier(u"Choisir le fichier de données"_s, u"Fichiers de données (*.fdb)"_s);
  if (!fichier) return false;
  if (!fichier->endsWith(u".fdb", Qt::CaseInsensitive)) {  // it would be taken for the name of a server
    dialogues_.Message(u"« %1 » n'est pas un fichier de données : son nom doit finir par « .fdb »."_s.arg(
        QFileInfo(*fichier).fileName()));
    return false;
  }
  KeepServerName(*fichier);
  return true;
}

void TDataModule1::KeepServerName(const QString& nom) {
  ServerName = nom;
  WriteServerName(CanWriteMachineKey() ? TRacine::Machine : TRacine::Utilisateur);
}

namespace {

/// A file that was moved, or whose disk is not there, must not look like a school that is lost.
bool AccepterFichier(IDialogues& dialogues, const QString& chemin) {
  return chemin.isEmpty() || QFileInfo::exists(chemin) ||
         dialogues.ConfirmerGrave(
             u"Aucune école ne se trouve à cet endroit :\n%1\n\nSi ses données y étaient, le fichier a été "
             "déplacé ou son disque n'est pas branché : répondez Non.\nVoulez-vous y créer une base de "
             "données vide ?"_s.arg(chemin));
}

}  // namespace

bool TDataModule1::ConnectToServer() {
  ServerName = ServeurImpose;
  if (ServerName.trimmed().isEmpty()) ReadServerName();
  if (ServerName.trimmed().isEmpty()) AskServerName();
  if (ServerName.trimmed().isEmpty()) return false;
  if (!AccepterFichier(dialogues_, FichierLocal()))
    throw Exception(
        u"Aucune école ne se trouve à cet endroit, et rien n'y a été créé : « %1 »."_s.arg(FichierLocal()));
  Connecter();
  return true;
}

QString TDataModule1::FichierLocal() const {
  const QString nom = ServerName.trimmed();
  if (nom.compare(u"local", Qt::CaseInsensitive) == 0) return DossierDonnees() + u"/PRESENCES.fdb"_s;
  if (nom.endsWith(u".fdb", Qt::CaseInsensitive)) return QFileInfo(nom).absoluteFilePath();
  return {};
}

void TDataModule1::Connecter() {
  Deconnecter();
  const QString fichier = FichierLocal();
  if (fichier.isEmpty())
    Ouvrir(ServerName.trimmed(), kBase);
  else
    OuvrirFichier(fichier);
}

void TDataModule1::OuvrirFichier(const QString& chemin) {
  const QFileInfo fichier(chemin);
  if (fichier.isDir()) throw Exception(u"« %1 » est un dossier et non un fichier de données."_s.arg(chemin));
  if (fichier.exists() && fichier.size() == 0)
    throw Exception(
        u"Le fichier de données « %1 » est vide. Effacez-le pour qu'il soit créé, ou "
        "remettez sa dernière sauvegarde à sa place."_s.arg(chemin));
  if (!fichier.exists()) CreerFichier(chemin);
  Ouvrir({}, chemin);
}

// Made beside its place and renamed when complete, so that an interruption leaves no half database.
void TDataModule1::CreerFichier(const QString& chemin) {
  const QString dossier = QFileInfo(chemin).absolutePath();
  if (!QDir().mkpath(dossier)) throw Exception(u"Le dossier « %1 » ne peut pas être créé."_s.arg(dossier));
  const QString ebauche = chemin + u".nouveau"_s;
  QFile::remove(ebauche);
  try {
    Firebird::CreerBase(ebauche);
    Firebird::EcrituresForcees(ebauche, false);  // nothing to lose yet
    Ouvrir({}, ebauche);
    CreerTables();
    Deconnecter();
    Firebird::EcrituresForcees(ebauche, true);
    if (!QFile::rename(ebauche, chemin))
      throw Exception(u"Le fichier de données « %1 » ne peut pas être créé."_s.arg(chemin));
  } catch (const Exception&) {
    Deconnecter();
    QFile::remove(ebauche);
    throw;
  }
}

void TDataModule1::Ouvrir(const QString& hote, const QString& base) {
  struct TRendreSignaux {
    ~TRendreSignaux() { SignauxDuProgramme().Rendre(); }
  } const ensuite;
  uniConnection1_ = std::make_unique<Firebird::TAttache>(hote, base, kUtilisateur, kMotDePasse);
}

std::shared_ptr<Firebird::TLectures> TDataModule1::Lectures() {
  if (!lectures_) lectures_ = std::make_shared<Firebird::TLectures>(Attache().Poignee());
  return lectures_;
}

int TDataModule1::GetNextId(const QString& counterName) {
  try {
    if (!compteurs_) compteurs_ = std::make_unique<Firebird::TCompteurs>(Attache().Poignee());
    const int cle = compteurs_->ProchaineCle(counterName);
    if (cle == -1) dialogues_.Message(u"Le compteur de table "_s + counterName + u" n'existe pas !"_s);
    return cle;
  } catch (const Exception& e) {
    compteurs_.reset();  // what went wrong may be in its statements
    dialogues_.Message(e.Message);
    return -1;
  }
}

int NextId(TDataModule1& base, const QString& counterName) { return base.GetNextId(counterName); }

namespace {

/// Most failures say that the statement has been run before.
void ExecuterOuPasser(Firebird::TAttache& attache, const QString& instruction) {
  try {
    attache.Executer(*attache.Preparer(instruction.toUtf8()));
  } catch (const Exception&) {
  }
}

}  // namespace

void TDataModule1::RunScript(const QString& lignes) {
  OublierLectures();
  for (const QString& instruction : Instructions(lignes)) ExecuterOuPasser(Attache(), instruction);
}

void TDataModule1::MettreAJour() { RunScript(ScriptMiseAJour()); }

void TDataModule1::CreerTables() {
  const QStringList tables = ElementsDuSchema(*this);
  if (!tables.contains(u"COUNTERS"_s)) RunScript(ScriptTablesDeBase());
  MettreAJour();
  const QStringList presents = ElementsDuSchema(*this);
  for (const QString& attendu : ElementsAttendus(ScriptTablesDeBase() + ScriptMiseAJour()))
    if (!presents.contains(attendu))
      throw Exception(u"La base de données est incomplète : il y manque %1."_s.arg(attendu));
}

void TDataModule1::EcrituresForcees(bool forcees) {
  if (EstLocal()) Firebird::EcrituresForcees(FichierLocal(), forcees);
}
