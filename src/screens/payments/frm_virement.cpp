// "Importation des virements"
#include "screens/payments/frm_virement.h"

#include <QFileInfo>

#include "core/accord.h"
#include "screens/payments/lignes_virement.h"

using namespace Qt::StringLiterals;

namespace {

const QString kAnneePrecedente = u"Extrait de l'année précédente"_s;

std::vector<TColonneGrille> Avec(std::vector<TColonneGrille> colonnes,
                                 const std::vector<TColonneGrille>& autres) {
  colonnes.insert(colonnes.end(), autres.begin(), autres.end());
  return colonnes;
}

const TColonneGrille kEtat{u"État"_s, 128, TGenre::Etat};

/// What could not be read stands as it is written.
TCellules Cellules(const TFauteReleve& f) {
  return {f.Donneur, f.Date, f.Montant, f.Communication, f.Compte};
}

}  // namespace

TFrmVirement::TFrmVirement(TContexteEcran& contexte)
    : Apercu(Avec(ColonnesMouvement(), {kEtat})),
      Historique(Avec(ColonnesMouvement(), {{u"Resp."_s, 60, TGenre::Entier}, kEtat})),
      contexte_(contexte),
      import_(contexte.Controleur) {
  Apercu.Etats = Historique.Etats = EtatsMouvement();
}

void TFrmVirement::FormShow() {
  voitCaches_ = false;
  RemplirHistorique();
}

bool TFrmVirement::FormCloseQuery() {
  if (enCours_)
    Signaler(TNiveauEtat::Alerte, u"Une importation est en cours : l'écran reste ouvert jusqu'à la fin."_s);
  return !enCours_;
}

// A file is soon read again: leaving asks nothing.
void TFrmVirement::FormClose() {
  if (const QString reste = EnSuspens(); !reste.isEmpty()) Signaler(TNiveauEtat::Alerte, reste);
}

QString TFrmVirement::EnSuspens() const {
  return pret_ ? Compter(import_.NombreAMemoriser(), u"mouvement non mémorisé"_s,
                         u"mouvements non mémorisés"_s, {})
               : QString();
}

QString TFrmVirement::NoteApercu() const {
  const int nombre = import_.NombreDejaImportes();
  return nombre == 0
             ? QString()
             : QString(TexteDejaImportes(nombre) % u" : Espace coche ce qui doit être mémorisé quand même");
}

void TFrmVirement::Cocher(int ligne, bool coche) {
  if (ligne < static_cast<int>(import_.Rangees().size())) import_.Cocher(ligne, coche);
  Annoncer();
}

// Step 1.

void TFrmVirement::btnEtape1Click() {
  if (enCours_) return;
  import_.Vider();
  memorise_ = false;
  pret_ = true;  // also when no file is chosen, on an empty list
  RemplirApercu();
  RelireMouvements();
  const auto chemin = contexte_.Dialogues().ChoisirFichier(
      u"Importer vos virements"_s, u"Relevés de la banque (*.csv *.txt *.cod *.xml)"_s);
  if (chemin) Lire(*chemin);
}

// What another workstation has stored or given since is not stored or given again. The rows of the list hold
// the movements, so they go first.
void TFrmVirement::RelireMouvements() {
  Globals.Eleves->ChargerExtraits = true;
  if (contexte_.Controleur.Extraits().EstPerime()) {
    Historique.Vider();
    Globals.Extraits.reset();
    Globals.ExtraitsPrecedents.reset();
  }
  RemplirHistorique();
}

void TFrmVirement::Lire(const QString& chemin) {
  const QString nom = QFileInfo(chemin).fileName();
  pret_ = false;
  try {
    pret_ = import_.Etape1(chemin);
  } catch (...) {
    RemplirApercu();
    Signaler(TNiveauEtat::Erreur, QString(u"Fichier refusé : " % nom));
    throw;
  }
  RemplirApercu();
  if (pret_)
    Signaler(TNiveauEtat::Succes, QString(u"Fichier lu : " % nom));
  else
    Signaler(TNiveauEtat::Erreur, QString(u"Fichier refusé : " % nom));
}

void TFrmVirement::RemplirApercu() {
  {
    const TGrille::TLot lot(Apercu);
    Apercu.Vider();
    Apercu.CasesACocher = false;
    for (const TRangeeVirement& rangee : import_.Rangees()) {
      TCellules cellules = CellulesMouvement(rangee.Lu);
      AjouterEleve(cellules, rangee.EleveId);
      if (rangee.Etat == TEtatMouvement::AnneePrecedente) cellules[Eleve] = kAnneePrecedente;
      const int ligne = Apercu.Ajouter(std::move(cellules), {}, static_cast<int>(rangee.Etat));
      Apercu.Cocher(ligne, rangee.Coche);
      if (rangee.Etat == TEtatMouvement::DejaImporte)
        Apercu.CasesACocher = true;
      else
        Apercu.OterCase(ligne);
    }
    AjouterFaute();
  }
  Annoncer();
}

void TFrmVirement::AjouterFaute() {
  if (const auto& faute = import_.Faute())
    Apercu.OterCase(Apercu.Ajouter(Cellules(*faute), {}, static_cast<int>(TEtatMouvement::Illisible)));
}

// Step 2.

void TFrmVirement::btnEtape2Click() {
  if (!Etape2Active()) return;
  enCours_ = true;
  Annoncer();
  try {
    import_.Etape2();
  } catch (...) {
    Terminer(TNiveauEtat::Erreur, u"Importation arrêtée : ce qui a été mémorisé jusque-là est gardé"_s);
    throw;
  }
  memorise_ = true;
  Terminer(TNiveauEtat::Succes, u"Mouvements mémorisés"_s);
}

void TFrmVirement::Terminer(TNiveauEtat niveau, const QString& texte) {
  enCours_ = false;
  RemplirApercu();
  RemplirHistorique();
  Signaler(niveau, texte);
}

void TFrmVirement::Signaler(TNiveauEtat niveau, const QString& texte) const {
  contexte_.Principal.Etat(niveau, texte);
}
