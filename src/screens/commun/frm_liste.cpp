#include "screens/commun/frm_liste.h"

#include <QScopedValueRollback>

#include "report/rapport.h"
#include "screens/commun/refus.h"

TFrmListe::TFrmListe(TContexteEcran& contexte, TTextesListe textes)
    : contexte_(contexte), textes_(std::move(textes)) {
  liens_ += Grille.SurChoix.Suivre([this] {
    if (mode_ == TModeEdition::Lecture) MontrerLigne();
    SurCommandes();
  });
}

void TFrmListe::FormShow() {
  liens_ += AnnoncerRefus(Champs(), contexte_.Principal);
  liens_ += Champs().SurChangement.Suivre([this](int) { SurChangement(); });
  Champs().DefinirLectureSeule(true);
  Remplir();
  Grille.ChoisirLigne(0);
  MontrerLigne();
}

// Modes

QString TFrmListe::TitrePanneau() const {
  switch (mode_) {
    case TModeEdition::Nouveau:
      return textes_.Nouveau;
    case TModeEdition::Modification:
      return textes_.Modification;
    case TModeEdition::Lecture:
      break;
  }
  return textes_.Lecture;
}

void TFrmListe::Passer(TModeEdition mode) {
  mode_ = mode;
  Champs().DefinirLectureSeule(mode == TModeEdition::Lecture);
  Annoncer();
  SurCommandes();
  if (mode != TModeEdition::Lecture) Champs().SurFoyer(0);
}

void TFrmListe::Nouveau() {
  MontrerNouveau();
  Passer(TModeEdition::Nouveau);
}

void TFrmListe::Modifier() { Passer(TModeEdition::Modification); }

void TFrmListe::Annuler() {
  if (mode_ == TModeEdition::Lecture || occupe_) return;
  Champs().AbandonnerTout();
  Passer(TModeEdition::Lecture);
  MontrerLigne();
}

bool TFrmListe::LaisserChamp() { return mode_ == TModeEdition::Lecture || Champs().QuitterTout(); }

// Changing

/// What cannot be stored is said in the words of the database; false then.
bool TFrmListe::Essayer(const std::function<void()>& faire) {
  const QScopedValueRollback pendant(occupe_, true);
  try {
    faire();
    return true;
  } catch (const Exception& e) {
    Dire(TNiveauEtat::Refus, u"Non enregistré"_s);
    contexte_.Dialogues().Message(e.Message);
    return false;
  }
}

bool TFrmListe::Enregistrer() {
  if (mode_ == TModeEdition::Lecture || occupe_ || !Controler() || !Champs().Verifier()) return false;
  if (!Essayer([this] { Ranger(mode_ == TModeEdition::Nouveau); })) {
    Champs().SurFoyer(0);
    return false;
  }
  supprime_.clear();
  Passer(TModeEdition::Lecture);
  MontrerLigne();
  const QString avis = Avis();
  avis.isEmpty() ? Dire(TNiveauEtat::Succes, textes_.Enregistre)
                 : Dire(TNiveauEtat::Alerte, QString(textes_.Enregistre % u" : " % avis));
  ApresChangement();
  return true;
}

void TFrmListe::Supprimer() {
  if (!contexte_.Dialogues().ConfirmerGrave(textes_.Question)) return;
  const int ligne = Grille.LigneCourante();
  const int voisine = Grille.Voisine(ligne);
  const QString nom = Grille.Texte(ligne, 0);
  if (!Essayer([this] { supprime_ = Oter(); })) return;
  Grille.ChoisirApresRetrait(ligne, voisine);
  Dire(TNiveauEtat::Succes, QString(textes_.Supprime % u" : " % nom % u" (Ctrl+Z rétablit)"));
  SurCommandes();
  ApresChangement();
}

void TFrmListe::Retablir() {
  if (mode_ != TModeEdition::Lecture || occupe_ || supprime_.empty()) return;
  if (!Essayer([this] { Remettre(supprime_); })) return;
  supprime_.clear();
  Dire(TNiveauEtat::Succes, textes_.Retabli);
  SurCommandes();
  ApresChangement();
}

void TFrmListe::Imprimer(const std::vector<int>& lignes, const std::vector<int>& colonnes) {
  TRapport rapport(textes_.Titre, u"RepDynamicFromListviewPortrait"_s);
  rapport.NomUsuel = textes_.Liste;
  std::vector<TColonneGrille> vues;
  for (const int colonne : colonnes) vues.push_back(Grille.Colonne(colonne));
  TGrille extrait(std::move(vues));
  extrait.Etats = Grille.Etats;
  for (const int ligne : lignes) {
    TCellules cellules;
    for (const int colonne : colonnes) cellules.push_back(Grille.Ligne(ligne).Valeur(colonne));
    extrait.Ajouter(std::move(cellules), {}, Grille.Ligne(ligne).Etat);
  }
  rapport.ChargerColonnesGrille(extrait);
  contexte_.Apercu.Afficher(rapport);
}

// Commands

const TFrmListe::TAction* TFrmListe::ActionDe(TCodeMessage code) {
  static constexpr TAction kActions[] = {
      {TCodeMessage::Nouveau, true, false, &TFrmListe::Nouveau},
      {TCodeMessage::Modifier, true, true, &TFrmListe::Modifier},
      {TCodeMessage::Supprimer, true, true, &TFrmListe::Supprimer},
      {TCodeMessage::Enregistrer, false, false, &TFrmListe::EnregistrerClick},
  };
  const auto* action = std::ranges::find(kActions, code, &TAction::Code);
  return action == std::end(kActions) ? nullptr : action;
}

bool TFrmListe::Accepte(TCodeMessage code) const {
  const TAction* action = ActionDe(code);
  return action != nullptr && action->EnLecture == (mode_ == TModeEdition::Lecture) &&
         (!action->SurLigne || Grille.LigneCourante() >= 0);
}

bool TFrmListe::RecevoirMessage(const TMessage& message) {
  const TAction* action = ActionDe(message.Code);
  if (action == nullptr) return false;
  if (!occupe_ && Accepte(message.Code)) (this->*action->Faire)();
  return true;
}

// Leaving

bool TFrmListe::FormCloseQuery() {
  return !EstModifie() ||
         contexte_.Dialogues().ConfirmerGrave(
             u"Ce que vous avez introduit n'est pas enregistré. Voulez-vous l'abandonner ?"_s);
}

QString TFrmListe::EnSuspens() const {
  return EstModifie() ? u"modifications non enregistrées"_s : QString();
}
