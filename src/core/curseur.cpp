#include "core/curseur.h"

#include <cstring>
#include <optional>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

using Firebird::TChamp;

struct TCurseur::TInterne {
  TInterne(isc_db_handle attache, const QByteArray& texte)
      : base(attache),
        propre(std::in_place, attache, false),
        transaction(*propre),
        instruction(std::make_unique<Firebird::TInstruction>(attache, transaction, texte)) {}
  TInterne(isc_db_handle attache, std::shared_ptr<Firebird::TLectures> communes, const QByteArray& texte)
      : base(attache),
        lectures(std::move(communes)),
        sql(texte),
        transaction(lectures->Transaction()),
        instruction(lectures->Prendre(texte)) {}

  const TChamp& Chercher(const char* nom) const {
    for (const TChamp& champ : instruction->Champs())
      if (champ.nom == nom) return champ;
    throw Exception(u"La colonne %1 manque dans la base de données : lancez sa mise à jour."_s.arg(
        QString::fromLatin1(nom)));
  }

  const TChamp& Colonne(const char* nom) {
    if (rangDemande < demandes.size() && demandes[rangDemande].first == nom)
      return *demandes[rangDemande++].second;
    const TChamp& champ = Chercher(nom);
    demandes.resize(rangDemande++);
    demandes.emplace_back(nom, &champ);
    return champ;
  }

  isc_db_handle base;
  std::optional<Firebird::TTransaction> propre;
  std::shared_ptr<Firebird::TLectures> lectures;  // to give the statement back to
  QByteArray sql;
  Firebird::TTransaction& transaction;
  std::unique_ptr<Firebird::TInstruction> instruction;
  // A load asks the same literals in the same order for each row: the position found for the first
  // row serves all the others.
  std::vector<std::pair<const char*, const TChamp*>> demandes;
  std::size_t rangDemande = 0;
};

TCurseur::TCurseur(TDataModule1& base, const QString& sql)
    : d_(std::make_unique<TInterne>(Firebird::Attache(base.Attache()), sql.toUtf8())) {
  d_->instruction->Executer();
}

TCurseur::TCurseur(TDataModule1& base, const QString& sql, const std::vector<int>& cles) {
  try {
    d_ = std::make_unique<TInterne>(Firebird::Attache(base.Attache()), base.Lectures(), sql.toUtf8());
    d_->instruction->Executer(cles);
  } catch (...) {
    base.OublierLectures();  // what went wrong may be in them
    throw;
  }
}

TCurseur::~TCurseur() {
  if (d_->lectures) d_->lectures->Rendre(d_->sql, std::move(d_->instruction));
}

bool TCurseur::Suivant() {
  d_->rangDemande = 0;
  return d_->instruction->Suivant();
}

bool TCurseur::EstNul(const char* colonne) { return d_->Colonne(colonne).nul < 0; }

namespace {

QString TexteDuChamp(const TChamp& champ) {
  if (champ.nul < 0) return {};
  const char* donnees = champ.donnees.data();
  if (champ.type == SQL_VARYING) {
    short longueur = 0;
    std::memcpy(&longueur, donnees, sizeof longueur);
    return QString::fromUtf8(donnees + sizeof longueur, longueur);
  }
  if (champ.type == SQL_TEXT) {
    auto longueur = static_cast<qsizetype>(champ.donnees.size());
    while (longueur > 0 && donnees[longueur - 1] == ' ') --longueur;
    return QString::fromUtf8(donnees, longueur);
  }
  return QString::number(Firebird::Entier(champ));
}

double Reel(const TChamp& champ) {
  if (champ.type == SQL_DOUBLE) return *reinterpret_cast<const double*>(champ.donnees.data());
  return static_cast<double>(*reinterpret_cast<const float*>(champ.donnees.data()));
}

}  // namespace

int TCurseur::Entier(const char* colonne) { return static_cast<int>(Firebird::Entier(d_->Colonne(colonne))); }

bool TCurseur::EstVrai(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.type == SQL_TEXT || champ.type == SQL_VARYING) return TexteDuChamp(champ) == u"1";
  return Firebird::Entier(champ) == 1;
}

QString TCurseur::Texte(const char* colonne) { return TexteDuChamp(d_->Colonne(colonne)); }

Currency TCurseur::Montant(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.nul < 0) return {};
  if (champ.type == SQL_DOUBLE || champ.type == SQL_FLOAT) return Currency::Arrondi(Reel(champ));
  std::int64_t unites = Firebird::EntierBrut(champ);
  for (int e = champ.echelle; e > -4; --e) unites *= 10;
  for (int e = champ.echelle; e < -4; ++e) unites /= 10;
  return Currency::Brut(unites);
}

TDateTime TCurseur::Date(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.nul < 0) return 0.0;
  ISC_DATE jours = 0;  // days since 17 November 1858, first in a timestamp too
  std::memcpy(&jours, champ.donnees.data(), sizeof jours);
  return static_cast<double>(jours - 15018);
}

TDateTime TCurseur::Heure(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.nul < 0) return 0.0;
  ISC_TIME unites = 0;  // ten-thousandths of a second, behind the date in a timestamp
  const std::size_t debut = champ.type == SQL_TIMESTAMP ? sizeof(ISC_DATE) : 0;
  std::memcpy(&unites, champ.donnees.data() + debut, sizeof unites);
  return static_cast<double>((unites + 5) / 10) / 86400000.0;
}

QByteArray TCurseur::Octets(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.nul < 0) return {};
  if (champ.type != SQL_BLOB) return TexteDuChamp(champ).toUtf8();
  ISC_QUAD id;
  std::memcpy(&id, champ.donnees.data(), sizeof id);
  isc_blob_handle blob = 0;
  ISC_STATUS_ARRAY statut;
  isc_open_blob2(statut, &d_->base, d_->transaction.Poignee(), &blob, &id, 0, nullptr);
  Firebird::Verifier(statut);
  QByteArray octets;
  char segment[16384];
  unsigned short lus = 0;
  for (;;) {
    const ISC_STATUS fin = isc_get_segment(statut, &blob, &lus, sizeof segment, segment);
    if (fin != 0 && fin != isc_segment) break;
    octets.append(segment, lus);
  }
  const bool complet = statut[1] == isc_segstr_eof;
  ISC_STATUS_ARRAY ignore;
  isc_close_blob(ignore, &blob);
  if (!complet) Firebird::Verifier(statut);
  return octets;
}
