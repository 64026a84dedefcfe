#include "screens/pupils/frm_signaletique.h"

#include <algorithm>

#include "core/exceptions.h"
#include "core/formats.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

QString TitreActivites(TTypeActivitesExt type) {
  switch (type) {
    case TTypeActivitesExt::DepuisSeptembre:
      return u"Activités extérieures (du 28 septembre au 30 juin)"_s;
    case TTypeActivitesExt::DepuisOctobre:
      return u"Activités extérieures (du 5 octobre au 30 juin)"_s;
    case TTypeActivitesExt::Aucune:
      break;
  }
  return {};
}

/// "Judo (lundi, jeudi)"
QString TexteActivite(const TActivite& activite, const TActiviteEleve& inscription) {
  QStringList jours;
  for (std::size_t jour = 0; jour < inscription.FlgJours.size(); ++jour)
    if (inscription.FlgJours[jour]) jours += LocaleEcole().dayName(static_cast<int>(jour) + 1);
  return jours.isEmpty() ? activite.Libelle : activite.Libelle % u" (" % jours.join(u", ") % u')';
}

}  // namespace

TFrmSignaletique::TFrmSignaletique(const TContexteEcran& contexte)
    : contexte_(contexte), imprimeur_(contexte, TitresOfferts(TListeTitres::Eleves)) {
  const int mois = DecodeDate(contexte.Controleur.Horloge().Aujourdhui()).Mois;
  const auto trouve = std::ranges::find(kMoisFacturation, mois);
  if (trouve != kMoisFacturation.end()) indiceMois_ = static_cast<int>(trouve - kMoisFacturation.begin());
}

void TFrmSignaletique::FormShow() {
  titreActivitesExt_ = TitreActivites(Globals.Parametres->Regles().ActivitesExt);
  activitesVisibles_ = Globals.Activites != nullptr && Globals.Activites->Count() > 0;
  Annoncer();
}

bool TFrmSignaletique::RecevoirMessage(const TMessage& message) {
  switch (message.Code) {
    case TCodeMessage::EleveChange:
      PrendreEleve();
      return true;
    case TCodeMessage::Imprimer:
      courriel_ = false;
      imprimeur_.Proposer(TitresOfferts(TListeTitres::Eleves));
      return true;
    case TCodeMessage::Courriel:
      courriel_ = true;
      imprimeur_.Proposer(TitresCourriel());
      return true;
    case TCodeMessage::AssistantConfirme:
      if (const auto* choix = message.En<TChoixDocument>()) imprimeur_.Imprimer(*choix);
      return true;
    default:
      return false;
  }
}

// Whatever fails half-way, the screen never shows two pupils at once.
void TFrmSignaletique::PrendreEleve() {
  const TEleve* eleve = Globals.EleveCourant;
  if (eleve == nullptr) return Vider();
  try {
    LireFiche(*eleve);
    Frais.Remplir(*eleve);
    Annoncer();
    RemplirReleve(*eleve);
  } catch (...) {
    Vider();
    throw;
  }
}

void TFrmSignaletique::LireFiche(const TEleve& eleve) {
  avecEleve_ = true;
  fiche_ = TFicheEleve::De(eleve);
  LirePhoto(eleve);
  LireMarques(mois_, *Globals.PresencesParticulieres, eleve.Id);
  LireActivites(eleve);
}

// A picture that cannot be read is no reason to hide the pupil.
void TFrmSignaletique::LirePhoto(const TEleve& eleve) {
  try {
    photo_ = eleve.GetPhoto();
  } catch (const Exception& e) {
    photo_ = {};
    contexte_.Principal.Etat(TNiveauEtat::Erreur, e.Message);
  }
}

void TFrmSignaletique::LireActivites(const TEleve& eleve) {
  const TActiviteEleve* premiere = Globals.ActivitesEleves->ActivitesEleve(eleve.Id);
  joursActivite_ = premiere != nullptr ? premiere->FlgJours : std::array<bool, 5>{};
  QStringList textes;
  for (const TActivite& activite : *Globals.Activites)
    if (const auto* inscription = Globals.ActivitesEleves->ActiviteEleveParCle(eleve.Id, activite.Id))
      textes += TexteActivite(activite, *inscription);
  activites_ = textes.join(u", "_s);
}

void TFrmSignaletique::Vider() {
  avecEleve_ = false;
  fiche_ = {};
  photo_ = {};
  mois_ = GroupesMois();
  joursActivite_ = {};
  activites_.clear();
  Frais.Vider();
  Annoncer();
  Releve.Vider();
}

TEtatGrille TFrmSignaletique::EtatSolde() const {
  // By what is shown: less than a cent is nothing.
  const Currency vu = Frais.Solde.TronqueAuCent();
  if (vu < Currency()) return {u"À payer"_s, u"data-warning"_s};
  if (vu > Currency()) return {u"En avance"_s, u"dialog-ok-apply"_s};
  return {u"En ordre"_s, u"dialog-ok-apply"_s};
}

QStringList TFrmSignaletique::NomsMois() {
  QStringList noms;
  for (const int mois : kMoisFacturation) noms += NomMois(mois);
  return noms;
}

void TFrmSignaletique::cmbMoisChange(int indice) {
  if (indice < 0 || indice >= std::ssize(kMoisFacturation) || indice == indiceMois_) return;
  indiceMois_ = indice;
  if (avecEleve_ && Globals.EleveCourant != nullptr) RemplirReleve(*Globals.EleveCourant);
  Annoncer();
}

void TFrmSignaletique::RemplirReleve(const TEleve& eleve) {
  const int mois = kMoisFacturation[static_cast<std::size_t>(indiceMois_)];
  Releve.Remplir(eleve, BornesMois(mois, eleve.Eleves->AnneeScolaire));
}

QString TFrmSignaletique::TexteSansReleve() const {
  if (!avecEleve_ || Releve.Grille.NombreLignes() > 0) return {};
  return u"Aucun relevé en " % NomsMois()[indiceMois_].toLower();
}

void TFrmSignaletique::ModificationDemandee() {
  if (Globals.EleveCourant == nullptr)
    contexte_.Dialogues().Message(u"Veuillez sélectionner un élève"_s);
  else
    contexte_.Principal.Etat(TNiveauEtat::Alerte, u"Fiche en lecture seule : rien n'a été modifié"_s);
}
