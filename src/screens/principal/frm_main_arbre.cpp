// The pupil tree of the main window: selection, counts and teachers.
#include <algorithm>

#include "core/accord.h"
#include "screens/principal/frm_ajout_professeur.h"
#include "screens/principal/frm_main.h"
#include "workflows/professeurs.h"

using namespace Qt::StringLiterals;

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
  SurOutils();  // nothing else of the window follows who is chosen
}

// Also one who has no place in the tree, where classes without a site are left out.
void TFrmMain::ChoisirEleve(TEleve& eleve) {
  Arbre.Selectionner(Arbre.TrouverObjet(&eleve));
  if (Globals.EleveCourant == &eleve) return;
  QuitterChamp();
  Globals.EleveCourant = &eleve;
  Globals.ClasseCourante = eleve.Classe;
  Diffuser(TCodeMessage::EleveChange);
  SurOutils();
}

// What the year holds: staff are no pupils.

int TFrmMain::NombreEleves() const { return CompterLesEleves().Eleves; }

TFrmMain::TNombres TFrmMain::CompterLesEleves() const {
  TNombres nombres;
  if (Globals.Eleves == nullptr) return nombres;
  for (const TEleve& eleve : *Globals.Eleves) {
    if (CategorieDeClasse(eleve.CodeClasse) == TCategorie::Personnel) continue;
    ++nombres.Eleves;
    nombres.Radies += eleve.FlgRadie;
    nombres.SansSite += eleve.CodeImplantation.trimmed().isEmpty();
  }
  return nombres;
}

QString TFrmMain::TexteNombres() const {
  const TNombres nombres = CompterLesEleves();
  QString texte = CompterEleves(nombres.Eleves);
  if (nombres.Radies > 0) texte += u", dont " % Compter(nombres.Radies, u"radié"_s, u"radiés"_s);
  if (nombres.SansSite > 0 && Globals.Eleves->PlusieursImplantations())
    texte += u", %1 sans implantation"_s.arg(nombres.SansSite);
  return texte;
}

// Teachers.

void TFrmMain::Ajouterunprofesseur1Click() {
  if (!PeutAjouterProfesseur()) return;
  QuitterChamp();
  if (!EcranAccepte()) return;
  TFrmAjoutProfesseur saisie(Contexte);
  if (Contexte.Modale.MontrerModal(saisie) != TResultatModal::Valide) return;
  const QString nom = TProfesseurs(Controleur).Ajouter(saisie.Saisi.Nom, saisie.Saisi.Prenom);
  if (nom.isEmpty()) return;
  FermerEcran();
  QString fait = u"Professeur ajouté : " % nom;
  if (Globals.Eleves->PlusieursImplantations())
    fait += u" (sans implantation, il n'apparaît pas dans la liste)"_s;
  EtatApresEcran(TNiveauEtat::Succes, fait);
}

bool TFrmMain::PeutSupprimerProfesseur() const {
  const TNoeud* noeud = Arbre.Selection();
  const TEleve* eleve = noeud != nullptr ? noeud->Objet.En<TEleve>() : nullptr;
  return eleve != nullptr && TProfesseurs::EstProfesseur(*eleve) && !enTravail_;
}

void TFrmMain::Supprimerunprofesseur1Click() {
  if (!PeutSupprimerProfesseur()) return;
  QuitterChamp();
  if (!EcranAccepte()) return;
  if (!Contexte.Dialogues().ConfirmerGrave(
          u"Souhaitez-vous supprimer définitivement ce professeurs et les données de son compte ?"_s))
    return;
  TNoeud& noeud = *Arbre.Selection();
  TEleve& professeur = *noeud.Objet.En<TEleve>();
  const QString nom = professeur.NomComplet();
  FermerEcran();  // a screen behind the open one may hold him too
  if (Globals.EleveCourant == &professeur) Globals.EleveCourant = nullptr;
  MontrerTrouves({});
  TProfesseurs(Controleur).Supprimer(professeur);
  Arbre.Supprimer(noeud);
  Arbre.Annoncer();
  EtatApresEcran(TNiveauEtat::Succes, u"Professeur supprimé : " % nom);
}
