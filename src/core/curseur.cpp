#include "core/curseur.h"

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
    : d_(std::make_unique<TInterne>(base.Attache().Poignee(), sql.toUtf8())) {
  d_->instruction->Executer();
}

TCurseur::TCurseur(TDataModule1& base, const QString& sql, const std::vector<TValeur>& valeurs) {
  try {
    d_ = std::make_unique<TInterne>(base.Attache().Poignee(), base.Lectures(), sql.toUtf8());
    d_->instruction->Executer(valeurs);
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

int TCurseur::Entier(const char* colonne) { return static_cast<int>(Firebird::Entier(d_->Colonne(colonne))); }

bool TCurseur::EstVrai(const char* colonne) {
  const TChamp& champ = d_->Colonne(colonne);
  if (champ.type == SQL_TEXT || champ.type == SQL_VARYING) return Firebird::Texte(champ) == u"1";
  return Firebird::Entier(champ) == 1;
}

QString TCurseur::Texte(const char* colonne) { return Firebird::Texte(d_->Colonne(colonne)); }

Currency TCurseur::Montant(const char* colonne) { return Firebird::Montant(d_->Colonne(colonne)); }

TDateTime TCurseur::Date(const char* colonne) { return Firebird::Date(d_->Colonne(colonne)); }

TDateTime TCurseur::Heure(const char* colonne) { return Firebird::Heure(d_->Colonne(colonne)); }

QByteArray TCurseur::Octets(const char* colonne) {
  return Firebird::Octets(d_->Colonne(colonne), d_->base, d_->transaction);
}
