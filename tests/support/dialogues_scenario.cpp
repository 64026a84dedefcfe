#include "support/dialogues_scenario.h"

#include <gtest/gtest.h>

TDialoguesScenario::~TDialoguesScenario() {
  for (const TAttendu& attendu : attendus_)
    ADD_FAILURE() << "attendu, jamais venu : " << attendu.extrait.toStdString();
  EXPECT_EQ(Attentes, 0) << "un curseur d'attente est resté";
}

TDialoguesScenario& TDialoguesScenario::Attend(const QString& extrait) {
  attendus_.push_back({TSorte::Texte, extrait, false, {}});
  return *this;
}

TDialoguesScenario& TDialoguesScenario::Repond(const QString& extrait, bool oui) {
  attendus_.push_back({TSorte::Question, extrait, oui, {}});
  return *this;
}

TDialoguesScenario& TDialoguesScenario::Saisit(const QString& extrait, std::optional<QString> reponse) {
  attendus_.push_back({TSorte::Saisie, extrait, false, std::move(reponse)});
  return *this;
}

TDialoguesScenario& TDialoguesScenario::Reessaie(bool oui, bool parLeLien) {
  attendus_.push_back(
      {TSorte::Reessai, {}, oui, parLeLien ? std::optional<QString>(QString()) : std::nullopt});
  return *this;
}

TDialoguesScenario::TAttendu TDialoguesScenario::Suivant(TSorte sorte, const QString& texte) {
  if (attendus_.empty() || attendus_.front().sorte != sorte || !texte.contains(attendus_.front().extrait)) {
    ADD_FAILURE() << "inattendu : " << texte.toStdString()
                  << (attendus_.empty() ? "" : "\nattendu : " + attendus_.front().extrait.toStdString());
    return {sorte, {}, false, {}};
  }
  TAttendu attendu = attendus_.front();
  attendus_.pop_front();
  return attendu;
}

void TDialoguesScenario::Message(const QString& texte) {
  Dits += texte;
  Suivant(TSorte::Texte, texte);
}

void TDialoguesScenario::Information(const QString& texte) { Message(texte); }

bool TDialoguesScenario::Confirmer(const QString& question) {
  Questions += question;
  return Suivant(TSorte::Question, question).oui;
}

std::optional<QString> TDialoguesScenario::Saisir(const TSaisie& saisie) {
  Invites += saisie.Invite;
  while (true) {
    const auto reponse = Suivant(TSorte::Saisie, saisie.Titre + u'\n' + saisie.Invite).reponse;
    const QString refus = reponse && saisie.Refus ? saisie.Refus(*reponse) : QString();
    if (refus.isEmpty()) return reponse;
    Dits += refus;
  }
}

std::optional<QString> TDialoguesScenario::ChoisirFichier(const QString& titre, const QString&) {
  return Suivant(TSorte::Saisie, titre).reponse;
}

std::optional<QString> TDialoguesScenario::FichierAEnregistrer(const QString& titre, const QString&,
                                                               const QString&) {
  return Suivant(TSorte::Saisie, titre).reponse;
}

bool TDialoguesScenario::Reessayer(const TReessai& reessai) {
  Questions += reessai.Titre + u'\n' + reessai.Texte + u'\n' + reessai.Explication + u'\n' + reessai.Lien;
  const TAttendu attendu = Suivant(TSorte::Reessai, reessai.Texte);
  if (attendu.reponse) reessai.SurLien();
  return attendu.oui;
}

void TDialoguesScenario::Progression(int, int, const QString&) { ++Progressions; }

void TDialoguesScenario::CurseurAttente(bool actif) { Attentes += actif ? 1 : -1; }
