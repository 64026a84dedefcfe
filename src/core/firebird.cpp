#include "core/firebird.h"

#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

namespace Firebird {
namespace {

/// An attachment beside the program's, detached with its object.
struct TAttacheLocale {
  isc_db_handle poignee = 0;
  ~TAttacheLocale() {
    ISC_STATUS_ARRAY statut;
    if (poignee != 0) isc_detach_database(statut, &poignee);
  }
};

}  // namespace

void CreerBase(const QString& chemin) {
  const QByteArray sql = "CREATE DATABASE '" + QString(chemin).replace(u'\'', u"''"_s).toUtf8() +
                         "' USER 'sysdba' PAGE_SIZE 16384 DEFAULT CHARACTER SET UTF8";
  TAttacheLocale base;
  isc_tr_handle aucune = 0;
  ISC_STATUS_ARRAY statut;
  isc_dsql_execute_immediate(statut, &base.poignee, &aucune, 0, sql.constData(), 3, nullptr);
  Verifier(statut, chemin);
}

void EcrituresForcees(const QString& chemin, bool forcees) {
  QByteArray dpb;
  dpb.append(static_cast<char>(isc_dpb_version1));
  dpb.append(static_cast<char>(isc_dpb_user_name)).append(char(6)).append("sysdba");
  dpb.append(static_cast<char>(isc_dpb_force_write))
      .append(char(1))
      .append(static_cast<char>(forcees ? 1 : 0));
  const QByteArray nom = chemin.toUtf8();
  TAttacheLocale base;
  ISC_STATUS_ARRAY statut;
  isc_attach_database(statut, static_cast<short>(nom.size()), nom.constData(), &base.poignee,
                      static_cast<short>(dpb.size()), dpb.constData());
  Verifier(statut, chemin);
}

}  // namespace Firebird

namespace {

struct TErreurConnue {
  const char* extrait;  ///< part of the engine's English text
  const char* phrase;   ///< "%1" is the file
};

constexpr TErreurConnue kErreurs[] = {
    {"already opened with engine instance",
     "Le fichier de données %1 est déjà ouvert par un autre programme. Fermez l'autre Calpenne (ou le "
     "traitement en cours) sur cet ordinateur, puis recommencez."},
    {"unsupported on-disk structure",
     "Le fichier de données %1 vient d'une autre version de Firebird. Faites-en une sauvegarde avec cette "
     "version-là (gbak -b), puis restaurez-la ici (gbak -c)."},
    {"is not a valid database",
     "Le fichier %1 n'est pas une base de données de Calpenne. Choisissez un autre fichier."},
    {"read-only", "Le fichier de données %1 est protégé en écriture. Donnez-vous le droit d'y écrire."},
    {"no permission for read-write access",
     "Le fichier de données %1 est protégé en écriture. Donnez-vous le droit d'y écrire."},
    {"Your user name and password are not defined",
     "Le serveur de données refuse l'utilisateur du programme. Demandez à votre administrateur de vérifier "
     "le mot de passe de « sysdba »."},
    {"Unable to complete network request",
     "Le serveur de données ne répond pas. Vérifiez qu'il est allumé et que son nom est correct."},
    {"Failed to establish a connection",
     "Le serveur de données ne répond pas. Vérifiez qu'il est allumé et que son nom est correct."},
    {"Error reading data from the connection",
     "La liaison avec le serveur de données est coupée. Fermez le programme et recommencez."},
    {"Error writing data to the connection",
     "La liaison avec le serveur de données est coupée. Fermez le programme et recommencez."},
    {"I/O error during \"open\"", "Le fichier de données %1 ne peut pas être ouvert."},
    {"I/O error", "Le fichier de données %1 ne peut pas être lu ou écrit (disque plein ou débranché ?)."},
    {"violation of PRIMARY or UNIQUE", "Cet enregistrement existe déjà dans la base de données."},
    {"violation of FOREIGN KEY", "Cet enregistrement est encore utilisé ailleurs dans la base de données."},
    {"string right truncation", "Un texte est trop long pour la base de données."},
    {"string truncation", "Un texte est trop long pour la base de données."},
    {"numeric value is out of range", "Un nombre est trop grand pour la base de données."},
    {"validation error", "Une valeur obligatoire manque."},
    {"deadlock", "Un autre poste modifie le même enregistrement. Recommencez dans un instant."},
    {"Table unknown", "Une table manque dans la base de données : lancez sa mise à jour."},
    {"Column unknown", "Une colonne manque dans la base de données : lancez sa mise à jour."},
};

}  // namespace

QString MessageBaseDeDonnees(const QString& texteDuPilote, const QString& fichier) {
  QString phrase = u"La base de données a refusé l'opération."_s;
  for (const TErreurConnue& e : kErreurs) {
    if (!texteDuPilote.contains(QString::fromUtf8(e.extrait), Qt::CaseInsensitive)) continue;
    phrase =
        QString::fromUtf8(e.phrase).replace(u"%1"_s, fichier.isEmpty() ? QString() : u"« " + fichier + u" »");
    break;
  }
  return phrase.simplified() + u'\n' + texteDuPilote.trimmed();
}
