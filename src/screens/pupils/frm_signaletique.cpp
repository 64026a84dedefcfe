#include "screens/pupils/frm_signaletique.h"
#include "screens/commun/refus.h"

#include <algorithm>

#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "pupils/eleves.h"
#include "screens/commun/nom_de_liste.h"
#include "services/frais_eleve.h"

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

/// "P3 A · Centre · Matricule 212-04127-38"
QString SousTitreDe(const TEleve& eleve) {
  QStringList morceaux{eleve.LibelleClasse().trimmed(), eleve.LibelleImplantation()};
  if (!eleve.Matricule.isEmpty()) morceaux += u"Matricule " % eleve.Matricule;
  morceaux.removeAll(QString());
  return morceaux.join(u"  ·  "_s);
}

/// "2017-2018", to which what was owed in the year on display has been carried; "" when it was not.
QString AnneeDuReport(const TEleve& eleve) {
  if (const TAllFraisEleve* lignes = eleve.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes)
      if (ligne.Remarque.startsWith(u"Report vers l'année scolaire "))
        return ligne.Remarque.section(u' ', -1);
  return {};
}

}  // namespace

TFrmSignaletique::TFrmSignaletique(const TContexteEcran& contexte)
    : contexte_(contexte),
      imprimeur_(contexte, TitresOfferts(TListeTitres::Eleves)),
      champs_(Table(), TChamps::Aussitot) {
  champs_.SurPermission = [this] { return ExigeEleve(); };
  champs_.SurEnregistrer = [this](const TChamp& champ) { EnregistrerEleve(champ); };
  refus_ = AnnoncerRefus(champs_, contexte.Principal);
  champs_.SurEchec = [this](const TChamp& champ, const QString& faute) {
    contexte_.Principal.Etat(TNiveauEtat::Refus, QString(u"Non enregistré : " % NomDuChamp(champ)));
    contexte_.Dialogues().Message(faute);
  };
  imprimeur_.SurAllerAuChamp = [this](const TManque& manque) {
    TEleve* eleve = Globals.Eleves->TrouverParId(manque.EleveId);
    if (manque.EleveId == 0)
      contexte_.Principal.AllerAEcole(manque.Champ);
    else if (eleve != nullptr)
      AllerAuChamp(*eleve, manque.Champ);
    else
      contexte_.Principal.AllerAEleve(manque.AnneeScolaire, manque.EleveId, manque.Champ);
  };
  const int mois = DecodeDate(contexte.Controleur.Horloge().Aujourdhui()).Mois;
  indiceMois_ = std::max(IndiceMoisScolaire(mois), 0);
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
      imprimeur_.Proposer(TitresOfferts(TListeTitres::Eleves), MoisVu());
      return true;
    case TCodeMessage::Courriel:
      // It offers fewer titles, and nothing is sent yet.
      imprimeur_.Proposer(TitresCourriel(), MoisVu());
      return true;
    case TCodeMessage::AssistantConfirme:
      if (const auto* choix = message.En<TChoixDocument>()) imprimeur_.Imprimer(*choix);
      return true;
    default:
      return false;
  }
}

bool TFrmSignaletique::Accepte(TCodeMessage code) const {
  return code == TCodeMessage::Imprimer || code == TCodeMessage::Courriel;
}

// Whatever fails half-way, the screen never shows two pupils at once.
void TFrmSignaletique::PrendreEleve() {
  TEleve* eleve = Globals.EleveCourant;
  // What was refused belonged to the pupil who is left.
  const QString perdu = champs_.Modifies() && eleve != champs_.Objet() ? nomComplet_ : QString();
  const auto direPerdu = [&] {
    if (!perdu.isEmpty())
      contexte_.Principal.Etat(TNiveauEtat::Alerte, u"Abandonné, car refusé : la modification de " % perdu);
  };
  if (eleve == nullptr) return Vider(), direPerdu();
  try {
    LireFiche(*eleve);
    direPerdu();
    Frais.Remplir(*eleve);
    Annoncer();
    RemplirReleve(*eleve);
  } catch (...) {
    Vider();
    throw;
  }
}

void TFrmSignaletique::AllerAuChamp(TEleve& eleve, const QString& champ) {
  PrendreEnMain(eleve);
  if (champs_.Objet() != &eleve) PrendreEleve();  // one who does not stand in the tree
  if (const int indice = champs_.Indice(champ); indice >= 0) champs_.SurFoyer(indice);
}

QString TFrmSignaletique::Titre() const {
  if (avecEleve_) return nomComplet_;
  if (Globals.Eleves == nullptr || Globals.Eleves->Count() > 0) return u"Choisissez un élève dans la liste"_s;
  return u"Aucun élève en "_s + AnneeEnTexte(Globals.Eleves->AnneeScolaire);
}

QStringList TFrmSignaletique::NomReleve() const { return NomDeListe(nomComplet_, MoisVu()); }

QStringList TFrmSignaletique::NomFrais() const { return NomDeListe(nomComplet_); }

// A text that was refused stands nowhere but in its field.
QString TFrmSignaletique::EnSuspens() const {
  return champs_.Modifies() ? QString(u"modification non enregistrée de " % nomComplet_) : QString();
}

// Behind another screen the pupil in hand may have become another one than the one who comes back with it.
bool TFrmSignaletique::FormCloseQuery() {
  if (!champs_.Modifies() ||
      contexte_.Dialogues().ConfirmerGrave(
          u"Ce que vous avez introduit n'est pas enregistré. Voulez-vous l'abandonner ?"_s))
    return true;
  if (TEleve* eleve = champs_.Objet(); eleve != nullptr && eleve != Globals.EleveCourant)
    PrendreEnMain(*eleve);
  return false;
}

void TFrmSignaletique::PrendreEnMain(TEleve& eleve) {
  Globals.EleveCourant = &eleve;
  Globals.ClasseCourante = eleve.Classe;
  contexte_.Principal.Envoyer({TCodeMessage::EleveChange, {}});
}

void TFrmSignaletique::LireFiche(TEleve& eleve) {
  avecEleve_ = true;
  champs_.Montrer(&eleve);
  nomComplet_ = eleve.NomComplet();
  sousTitre_ = SousTitreDe(eleve);
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

void TFrmSignaletique::Vider() {
  avecEleve_ = false;
  champs_.Montrer(nullptr);
  nomComplet_.clear();
  sousTitre_.clear();
  photo_ = {};
  mois_ = GroupesMois();
  joursActivite_ = {};
  for (TActiviteSuivie& activite : activites_) activite.Jours = {};
  Frais.Vider();
  Annoncer();
  Releve.Vider();
}

TEtatGrille TFrmSignaletique::EtatSolde() const {
  // By what is shown: less than a cent is nothing.
  const Currency vu = Frais.Solde.TronqueAuCent();
  if (vu < Currency()) return {u"À payer"_s, u"data-warning"_s};
  if (vu > Currency()) return {u"En votre faveur"_s, u"dialog-ok-apply"_s};
  const QString annee =
      avecEleve_ && Globals.EleveCourant != nullptr ? AnneeDuReport(*Globals.EleveCourant) : QString();
  return {annee.isEmpty() ? u"En ordre"_s : QString(u"Reporté en " % annee), u"dialog-ok-apply"_s};
}

void TFrmSignaletique::cmbMoisChange(int indice) {
  if (indice < 0 || indice >= std::ssize(kMoisScolaires) || indice == indiceMois_) return;
  indiceMois_ = indice;
  if (avecEleve_ && Globals.EleveCourant != nullptr) RemplirReleve(*Globals.EleveCourant);
  Annoncer();
}

void TFrmSignaletique::RemplirReleve(const TEleve& eleve) {
  Releve.Remplir(eleve, BornesMois(MoisVu(), eleve.Eleves->AnneeScolaire));
}

QString TFrmSignaletique::TexteSansReleve() const {
  if (!avecEleve_ || Releve.Grille.NombreLignes() > 0) return {};
  return u"Aucun relevé en " % NomMoisCourant(MoisVu());
}
