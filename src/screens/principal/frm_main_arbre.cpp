// The pupil tree of the main window: selection, search and teachers.
#include <algorithm>

#include "screens/principal/frm_ajout_professeur.h"
#include "screens/principal/frm_main.h"

using namespace Qt::StringLiterals;

namespace {

const QString kProfesseurs = u"PROFESSEURS"_s;

}  // namespace

// The control in hand is left first, so that its change is saved for the pupil it belongs to.
void TFrmMain::tvEleveChange() {
  if (arbreSuspendu_) return;
  QuitterChamp();
  const TNoeud* noeud = Arbre.Selection();
  if (noeud == nullptr) return;
  if (TEleve* eleve = noeud->Objet.En<TEleve>()) {
    Globals.EleveCourant = eleve;
    Globals.ClasseCourante = eleve->Classe;
    Diffuser(TCodeMessage::EleveChange);
  } else if (TClasse* classe = noeud->Objet.En<TClasse>()) {
    Globals.ClasseCourante = classe;
    Diffuser(TCodeMessage::ClasseChange);
  }
  Annoncer();
}

// Search.

TNoeud* TFrmMain::NoeudQuiCommence(TNoeud* debut) const {
  const QString cherche = recherche_.trimmed();
  if (cherche.isEmpty()) return nullptr;
  return Arbre.Trouver(
      [&](const TNoeud& noeud) { return noeud.Texte.startsWith(cherche, Qt::CaseInsensitive); }, debut);
}

QString TFrmMain::edSearchKeyPress(const QString& texte) {
  QString admis;
  for (const QChar c : texte)
    if (!c.isDigit() && !QStringView(u"*+-./").contains(c)) admis += c;
  return admis;
}

void TFrmMain::edSearchChange(const QString& texte) {
  recherche_ = texte;
  if (TNoeud* noeud = NoeudQuiCommence(Arbre.Premier())) {
    Arbre.Selectionner(noeud);
    Etat(TNiveauEtat::Neutre, {});
  } else if (!texte.trimmed().isEmpty()) {
    Etat(TNiveauEtat::Alerte, u"Aucun nom de la liste ne commence par « " % texte.trimmed() % u" »");
  }
}

void TFrmMain::btnRechercheClick() {
  if (recherche_.trimmed().isEmpty() || enTravail_) return;
  for (;;) {
    const TNoeud* choisi = Arbre.Selection();
    TNoeud* debut = choisi != nullptr ? Arbre.Suivant(*choisi) : Arbre.Premier();
    if (TNoeud* noeud = NoeudQuiCommence(debut)) {
      Arbre.Selectionner(noeud);
      return;
    }
    if (!Contexte.Dialogues().Confirmer(
            u"Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?"_s))
      return;
    Arbre.Selectionner(Arbre.Premier());
  }
}

int TFrmMain::NombreEleves() const { return Globals.Eleves != nullptr ? Globals.Eleves->Count() : 0; }

int TFrmMain::NombreRadies() const {
  int nombre = 0;
  if (Globals.Eleves != nullptr)
    for (const TEleve& eleve : *Globals.Eleves) nombre += eleve.FlgRadie;
  return nombre;
}

// Teachers.

void TFrmMain::Ajouterunprofesseur1Click() {
  if (!PeutAjouterProfesseur()) return;
  QuitterChamp();
  TFrmAjoutProfesseur saisie(Contexte);
  if (Contexte.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  TEleves& eleves = *Globals.Eleves;
  auto nouveau = std::make_unique<TEleve>();
  nouveau->Nom = saisie.Saisi.Nom;
  nouveau->Prenom = saisie.Saisi.Prenom;
  TEleve& professeur = eleves.AddEleve(std::move(nouveau));
  try {
    eleves.Save();
  } catch (...) {  // a later save must not try it again
    eleves.RemoveEleve(professeur);
    throw;
  }
  if (professeur.Id == -1) {  // no key could be had, which the user has been told
    eleves.RemoveEleve(professeur);
    return;
  }
  Inscrire(professeur);
  const QString nom = professeur.NomComplet();
  Controleur.ChargerAnnee(Globals.AnneeScolaire);
  FermerEcran();
  QString fait = u"Professeur ajouté : " % nom;
  if (Globals.Eleves->PlusieursImplantations())
    fait += u" (sans implantation, il n'apparaît pas dans la liste)"_s;
  EtatApresEcran(TNiveauEtat::Succes, fait);
}

// The pupils of an earlier year on display would enrol it in that year, so the enrolment goes through
// the enrolments of the working year.
void TFrmMain::Inscrire(TEleve& professeur) {
  TElevesClasses(Controleur.Base(), Globals.AnneeScolaire)
      .Inscrire(professeur.Id, kProfesseurs, Globals.AnneeScolaire, {}, {});
  professeur.Matricule = u"000" % QString::number(professeur.Id);
  Globals.Eleves->AddEleve(professeur);
  Globals.Eleves->Save();
}

bool TFrmMain::PeutSupprimerProfesseur() const {
  const TNoeud* noeud = Arbre.Selection();
  const TEleve* eleve = noeud != nullptr ? noeud->Objet.En<TEleve>() : nullptr;
  return eleve != nullptr && eleve->Classe != nullptr && eleve->Classe->CodeClasse == kProfesseurs &&
         !enTravail_;
}

void TFrmMain::Supprimerunprofesseur1Click() {
  if (!PeutSupprimerProfesseur()) return;
  QuitterChamp();
  if (!Contexte.Dialogues().ConfirmerGrave(
          u"Souhaitez-vous supprimer définitivement ce professeurs et les données de son compte ?"_s))
    return;
  TNoeud& noeud = *Arbre.Selection();
  TEleve& professeur = *noeud.Objet.En<TEleve>();
  const QString nom = professeur.NomComplet();
  OublierEleve(professeur);
  Globals.Eleves->RemoveEleve(professeur);
  Globals.Eleves->Save();
  Arbre.Supprimer(noeud);
  Arbre.Annoncer();
  Etat(TNiveauEtat::Succes, u"Professeur supprimé : " % nom);
}

// The open screen lets go of it before it ends.
void TFrmMain::OublierEleve(const TEleve& eleve) {
  if (Globals.EleveCourant != &eleve) return;
  Globals.EleveCourant = nullptr;
  Diffuser(TCodeMessage::EleveChange);
}
