#include "core/exceptions.h"
#include "core/firebird.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

namespace Firebird {
namespace {

constexpr unsigned short kDialecte = 3;

std::vector<char> Tampon(short colonnes) {
  std::vector<char> tampon(static_cast<std::size_t>(XSQLDA_LENGTH(colonnes)));
  auto* sqlda = reinterpret_cast<XSQLDA*>(tampon.data());
  sqlda->version = SQLDA_VERSION1;
  sqlda->sqln = colonnes;
  return tampon;
}

std::size_t Taille(const XSQLVAR& v) {
  const auto longueur = static_cast<std::size_t>(v.sqllen);
  return (v.sqltype & ~1) == SQL_VARYING ? longueur + sizeof(short) : longueur;
}

/// The description of one text parameter, which must outlive the call.
struct TParametreTexte {
  explicit TParametreTexte(const QByteArray& texte) : tampon(Tampon(1)) {
    auto* sqlda = reinterpret_cast<XSQLDA*>(tampon.data());
    sqlda->sqld = 1;
    XSQLVAR& v = sqlda->sqlvar[0];
    v.sqltype = SQL_TEXT;
    v.sqllen = static_cast<short>(texte.size());
    v.sqldata = const_cast<char*>(texte.constData());
  }
  XSQLDA* Sqlda() { return reinterpret_cast<XSQLDA*>(tampon.data()); }
  std::vector<char> tampon;
};

}  // namespace

void Verifier(const ISC_STATUS_ARRAY statut, const QString& fichier) {
  if (statut[0] != 1 || statut[1] == 0) return;
  QString texte;
  char ligne[512];
  const ISC_STATUS* suite = statut;
  while (fb_interpret(ligne, sizeof ligne, &suite) != 0) {
    if (!texte.isEmpty()) texte += u'\n';
    texte += QString::fromUtf8(ligne);
  }
  throw Exception(MessageBaseDeDonnees(texte, fichier));
}

isc_db_handle Attache(const QVariant& poignee) {
  // Qt's driver hands out the handle by value, under the name of its underlying integer type.
  if (poignee.metaType() != QMetaType::fromType<isc_db_handle>())
    throw Exception(u"La connexion à la base de données n'est pas ouverte."_s);
  return *static_cast<const isc_db_handle*>(poignee.constData());
}

TTransaction::TTransaction(isc_db_handle base, bool ecriture) {
  const char mode = static_cast<char>(ecriture ? isc_tpb_write : isc_tpb_read);
  const char tpb[] = {isc_tpb_version3, mode, isc_tpb_wait, isc_tpb_read_committed, isc_tpb_rec_version};
  ISC_STATUS_ARRAY statut;
  isc_start_transaction(statut, &poignee_, 1, &base, static_cast<unsigned short>(sizeof tpb), tpb);
  Verifier(statut);
}

TTransaction::~TTransaction() {
  ISC_STATUS_ARRAY statut;
  if (poignee_ != 0) isc_rollback_transaction(statut, &poignee_);
}

void TTransaction::Valider() {
  ISC_STATUS_ARRAY statut;
  isc_commit_transaction(statut, &poignee_);
  Verifier(statut);
}

TInstruction::TInstruction(isc_db_handle base, TTransaction& transaction, const QByteArray& sql)
    : transaction_(&transaction), resultat_(Tampon(40)) {
  ISC_STATUS_ARRAY statut;
  isc_dsql_allocate_statement(statut, &base, &poignee_.valeur);
  Verifier(statut);
  isc_dsql_prepare(statut, transaction_->Poignee(), &poignee_.valeur, 0, sql.constData(), kDialecte,
                   Resultat());
  Verifier(statut);
  DecrireResultat();
}

TInstruction::TPoignee::~TPoignee() {
  ISC_STATUS_ARRAY statut;
  if (valeur != 0) isc_dsql_free_statement(statut, &valeur, DSQL_drop);
}

void TInstruction::DecrireResultat() {
  if (Resultat()->sqld > Resultat()->sqln) {
    resultat_ = Tampon(Resultat()->sqld);
    ISC_STATUS_ARRAY statut;
    isc_dsql_describe(statut, &poignee_.valeur, kDialecte, Resultat());
    Verifier(statut);
  }
  champs_.resize(static_cast<std::size_t>(Resultat()->sqld));
  for (std::size_t i = 0; i < champs_.size(); ++i) {
    XSQLVAR& v = Resultat()->sqlvar[i];
    TChamp& champ = champs_[i];
    champ.nom = QByteArray(v.aliasname, v.aliasname_length).toUpper();
    champ.type = static_cast<short>(v.sqltype & ~1);
    champ.echelle = v.sqlscale;
    champ.donnees.resize(Taille(v));
    v.sqltype |= 1;  // a place for NULL also where the column forbids it
    v.sqldata = champ.donnees.data();
    v.sqlind = &champ.nul;
  }
}

void TInstruction::Executer(const QByteArray* parametre) {
  ISC_STATUS_ARRAY statut;
  if (parametre != nullptr) {
    TParametreTexte texte(*parametre);
    isc_dsql_execute(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, texte.Sqlda());
  } else {
    isc_dsql_execute(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, nullptr);
  }
  Verifier(statut);
}

void TInstruction::Executer(const std::vector<int>& cles) {
  std::vector<char> tampon = Tampon(static_cast<short>(cles.size()));
  auto* sqlda = reinterpret_cast<XSQLDA*>(tampon.data());
  sqlda->sqld = sqlda->sqln;
  for (std::size_t i = 0; i < cles.size(); ++i) {
    XSQLVAR& v = sqlda->sqlvar[i];
    v.sqltype = SQL_LONG;
    v.sqllen = sizeof(int);
    v.sqldata = reinterpret_cast<char*>(const_cast<int*>(&cles[i]));
  }
  ISC_STATUS_ARRAY statut;
  isc_dsql_execute(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, sqlda);
  Verifier(statut);
}

void TInstruction::ExecuterUneLigne(const QByteArray& parametre) {
  TParametreTexte texte(parametre);
  ISC_STATUS_ARRAY statut;
  isc_dsql_execute2(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, texte.Sqlda(), Resultat());
  Verifier(statut);
}

void TInstruction::Fermer() {
  ISC_STATUS_ARRAY statut;
  isc_dsql_free_statement(statut, &poignee_.valeur, DSQL_close);
}

bool TInstruction::Suivant() {
  ISC_STATUS_ARRAY statut;
  if (isc_dsql_fetch(statut, &poignee_.valeur, kDialecte, Resultat()) == 100) return false;
  Verifier(statut);
  return true;
}

std::unique_ptr<TInstruction> TLectures::Prendre(const QByteArray& sql) {
  if (auto libre = libres_.extract(sql)) return std::move(libre.mapped());
  return std::make_unique<TInstruction>(base_, transaction_, sql);
}

void TLectures::Rendre(const QByteArray& sql, std::unique_ptr<TInstruction> instruction) {
  instruction->Fermer();
  libres_.insert_or_assign(sql, std::move(instruction));
}

std::int64_t EntierBrut(const TChamp& champ) {
  if (champ.nul < 0) return 0;
  const char* donnees = champ.donnees.data();
  switch (champ.type) {
    case SQL_SHORT:
      return *reinterpret_cast<const std::int16_t*>(donnees);
    case SQL_LONG:
      return *reinterpret_cast<const std::int32_t*>(donnees);
    case SQL_INT64:
      return *reinterpret_cast<const std::int64_t*>(donnees);
    default:
      return 0;
  }
}

std::int64_t Entier(const TChamp& champ) {
  std::int64_t valeur = EntierBrut(champ);
  for (short e = champ.echelle; e < 0; ++e) valeur /= 10;
  return valeur;
}

}  // namespace Firebird
