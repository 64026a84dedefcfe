#include "core/firebird_interne.h"

namespace Firebird {
namespace {

constexpr unsigned short kDialecte = 3;

std::size_t Taille(const XSQLVAR& v) {
  const auto longueur = static_cast<std::size_t>(v.sqllen);
  return (v.sqltype & ~1) == SQL_VARYING ? longueur + sizeof(short) : longueur;
}

}  // namespace

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
    : base_(base), transaction_(&transaction), resultat_(Tampon(40)) {
  ISC_STATUS_ARRAY statut;
  isc_dsql_allocate_statement(statut, &base_, &poignee_.valeur);
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
    resultat_ = Tampon(static_cast<std::size_t>(Resultat()->sqld));
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

void TInstruction::Executer(const TValeurs& valeurs) {
  TLiaison liaison(base_, *transaction_, valeurs);
  ISC_STATUS_ARRAY statut;
  isc_dsql_execute(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, liaison.Sqlda());
  Verifier(statut);
}

void TInstruction::ExecuterUneLigne(const TValeurs& valeurs) {
  TLiaison liaison(base_, *transaction_, valeurs);
  ISC_STATUS_ARRAY statut;
  isc_dsql_execute2(statut, transaction_->Poignee(), &poignee_.valeur, kDialecte, liaison.Sqlda(),
                    Resultat());
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

int TInstruction::RangeesEcrites() {
  const char demande[] = {isc_info_sql_records, isc_info_end};
  char reponse[64] = {};
  ISC_STATUS_ARRAY statut;
  isc_dsql_sql_info(statut, &poignee_.valeur, sizeof demande, demande, sizeof reponse, reponse);
  Verifier(statut);
  if (reponse[0] != isc_info_sql_records) return 0;
  // A tag of one byte, a length of two, and in it the same for each kind of count.
  int rangees = 0;
  const char* place = reponse + 3;
  while (*place != isc_info_end) {
    const auto longueur = static_cast<short>(isc_vax_integer(place + 1, 2));
    if (*place != isc_info_req_select_count) rangees += isc_vax_integer(place + 3, longueur);
    place += 3 + longueur;
  }
  return rangees;
}

}  // namespace Firebird
