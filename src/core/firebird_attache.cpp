#include "core/exceptions.h"
#include "core/firebird.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

namespace Firebird {

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

TAttache::TAttache(const QString& hote, const QString& base, const QString& utilisateur,
                   const QString& motDePasse) {
  QByteArray dpb(1, static_cast<char>(isc_dpb_version1));
  const auto ajouter = [&dpb](int quoi, const QByteArray& valeur) {
    dpb.append(static_cast<char>(quoi)).append(static_cast<char>(valeur.size())).append(valeur);
  };
  ajouter(isc_dpb_user_name, utilisateur.toUtf8());
  if (!motDePasse.isEmpty()) ajouter(isc_dpb_password, motDePasse.toUtf8());
  ajouter(isc_dpb_lc_ctype, "UTF8");
  ajouter(isc_dpb_utf8_filename, {});
  const QByteArray nom = (hote.isEmpty() ? base : hote + u':' + base).toUtf8();
  ISC_STATUS_ARRAY statut;
  isc_attach_database(statut, static_cast<short>(nom.size()), nom.constData(), &poignee_,
                      static_cast<short>(dpb.size()), dpb.constData());
  Verifier(statut, hote.isEmpty() ? base : QString());
}

TAttache::~TAttache() {
  AnnulerCommune();
  ISC_STATUS_ARRAY statut;
  if (poignee_ != 0) isc_detach_database(statut, &poignee_);
}

std::unique_ptr<TInstruction> TAttache::Preparer(const QByteArray& sql) {
  if (commune_) return std::make_unique<TInstruction>(poignee_, *commune_, sql);
  TTransaction transaction(poignee_, true);
  auto instruction = std::make_unique<TInstruction>(poignee_, transaction, sql);
  transaction.Valider();
  return instruction;
}

int TAttache::Executer(TInstruction& instruction, const TValeurs& valeurs) {
  std::unique_ptr<TTransaction> propre;
  if (!commune_) propre = std::make_unique<TTransaction>(poignee_, true);
  instruction.Dans(commune_ ? *commune_ : *propre);
  instruction.Executer(valeurs);
  const int rangees = instruction.RangeesEcrites();
  if (propre) propre->Valider();
  return rangees;
}

void TAttache::OuvrirCommune() {
  if (commune_) throw Exception(u"Une transaction est déjà ouverte."_s);
  commune_ = std::make_unique<TTransaction>(poignee_, true);
}

void TAttache::ValiderCommune() {
  commune_->Valider();
  commune_.reset();
}

std::unique_ptr<TInstruction> TLectures::Prendre(const QByteArray& sql) {
  if (auto libre = libres_.extract(sql)) return std::move(libre.mapped());
  return std::make_unique<TInstruction>(base_, transaction_, sql);
}

void TLectures::Rendre(const QByteArray& sql, std::unique_ptr<TInstruction> instruction) {
  instruction->Fermer();
  libres_.insert_or_assign(sql, std::move(instruction));
}

// The table is known by the place of its columns, not by their names.
void TCompteurs::Preparer(TTransaction& transaction) {
  if (ajout_) return;
  const TInstruction colonnes(base_, transaction, "SELECT * FROM COUNTERS");
  if (colonnes.Champs().size() < 2) throw Exception(u"La table COUNTERS n'a pas deux colonnes."_s);
  const QByteArray cle = '"' + colonnes.Champs()[0].nom + '"';
  const QByteArray valeur = '"' + colonnes.Champs()[1].nom + '"';
  // Waiting here, and not at the update, is what lets eight workstations in without a failure.
  verrou_ = std::make_unique<TInstruction>(base_, transaction,
                                           "SELECT 1 FROM COUNTERS WHERE " + cle + " = ? WITH LOCK");
  ajout_ = std::make_unique<TInstruction>(base_, transaction,
                                          "UPDATE COUNTERS SET " + valeur + " = COALESCE(" + valeur +
                                              ", 0) + 1 WHERE " + cle + " = ? RETURNING " + valeur);
}

int TCompteurs::ProchaineCle(const QString& compteur) {
  TTransaction transaction(base_, true);
  Preparer(transaction);
  verrou_->Dans(transaction);
  verrou_->Executer({compteur});
  const bool existe = verrou_->Suivant();
  verrou_->Fermer();
  if (!existe) return -1;
  ajout_->Dans(transaction);
  ajout_->ExecuterUneLigne({compteur});
  const auto resultat = static_cast<int>(Entier(ajout_->Champs()[0]));
  transaction.Valider();
  return resultat;
}

}  // namespace Firebird
