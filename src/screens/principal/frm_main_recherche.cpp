// The search of the main window: first the names of the tree by their beginning, then any part of what is
// known of a pupil, and the register number as a hand scanner types it.
#include <utility>

#include "core/accord.h"
#include "core/comparaisons.h"
#include "screens/principal/frm_main.h"

using namespace Qt::StringLiterals;

namespace {

QString Connu(const TEleve& eleve) {
  return QStringList{eleve.NomComplet(), eleve.NomResponsable, eleve.PrenomResponsable, eleve.NomResponsable2,
                     eleve.PrenomResponsable2}
      .join(u'\n');
}

}  // namespace

QString TFrmMain::edSearchKeyPress(const QString& texte) {
  QString admis;
  for (const QChar c : texte)
    if (!c.isDigit() && !QStringView(u"*+-./").contains(c)) admis += c;
  return admis;
}

QString TFrmMain::edSearchSaisie(const QString& texte) {
  const QString admis = edSearchKeyPress(texte);
  if (admis != recherche_) edSearchChange(admis);
  if (!admis.trimmed().isEmpty()) return admis;
  for (const QChar c : texte)
    if (c.isDigit()) matricule_ += c;
  if (!matricule_.isEmpty())
    Etat(TNiveauEtat::Neutre, u"Matricule %1 : Entrée ouvre la fiche"_s.arg(matricule_));
  return admis;
}

TNoeud* TFrmMain::NoeudQuiCommence(TNoeud* debut) const {
  const QString cherche = recherche_.trimmed();
  if (cherche.isEmpty()) return nullptr;
  return Arbre.Trouver(
      [&](const TNoeud& noeud) { return noeud.Texte.startsWith(cherche, Qt::CaseInsensitive); }, debut);
}

/// "2 sur 3 pour « dupont »", of the names that begin so; "" for a single one.
QString TFrmMain::TexteRang() const {
  int rang = 0, nombre = 0;
  for (TNoeud* noeud = NoeudQuiCommence(Arbre.Premier()); noeud != nullptr;
       noeud = NoeudQuiCommence(Arbre.Suivant(*noeud))) {
    ++nombre;
    if (noeud == Arbre.Selection()) rang = nombre;
  }
  if (nombre < 2 || rang == 0) return {};
  const QString texte = u"%1 sur %2 pour « %3 »"_s.arg(rang).arg(nombre).arg(recherche_.trimmed());
  return rang < nombre ? QString(texte % u" : Entrée passe au suivant") : texte;
}

void TFrmMain::OuvrirNoeud(TNoeud& noeud, bool fiche) {
  Arbre.Selectionner(&noeud);
  Etat(TNiveauEtat::Neutre, TexteRang());
  if (noeud.Objet.En<TEleve>() != nullptr) OuvrirFiche(fiche);
}

void TFrmMain::OuvrirEleve(TEleve& eleve, bool fiche) {
  ChoisirEleve(eleve);
  OuvrirFiche(fiche);
}

// The record opens at the start, with no screen open, and where it is asked for on a screen that does not
// take up the pupil.
void TFrmMain::OuvrirFiche(bool demandee) {
  const TCommandePrincipale* ouverte = CommandeOuverte();
  const bool suit = ouverte != nullptr && ouverte->PrendEleve;
  if (Panneau.Courante() != nullptr && (!demandee || suit)) return;
  const TGestionnaire eleves = TGestionnaire::AdvGlowButton2Click;
  if (PageVisible(TPage::PgEleve) && CommandeActive(Commande(eleves))) Executer(eleves);
}

// Nobody is current after a search that found nobody, so that nobody's papers are printed by mistake.
void TFrmMain::LaisserEleve() {
  if (Arbre.Selection() != nullptr) Arbre.Selectionner(nullptr);
  if (Globals.EleveCourant == nullptr && Globals.ClasseCourante == nullptr) return;
  Globals.EleveCourant = nullptr;
  Globals.ClasseCourante = nullptr;
  Diffuser(TCodeMessage::EleveChange);
  Annoncer();
}

void TFrmMain::edSearchChange(const QString& texte) {
  recherche_ = texte;
  matricule_.clear();
  MontrerTrouves({});
  if (texte.trimmed().isEmpty()) return;
  if (TNoeud* noeud = NoeudQuiCommence(Arbre.Premier())) {
    OuvrirNoeud(*noeud, false);
  } else {
    ChercherPartout(false);
  }
}

void TFrmMain::MontrerTrouves(std::vector<TEleve*> trouves) {
  if (trouves_.empty() && trouves.empty()) return;
  trouves_ = std::move(trouves);
  SurTrouves();
}

void TFrmMain::ChoisirTrouve(int rang) {
  if (rang < 0 || rang >= static_cast<int>(trouves_.size())) return;
  TEleve& eleve = *trouves_[static_cast<std::size_t>(rang)];
  MontrerTrouves({});
  Etat(TNiveauEtat::Neutre, {});
  OuvrirEleve(eleve, true);
}

// In the order of the tree; then those who have no place in it, but are in the year all the same.
std::vector<TEleve*> TFrmMain::ElevesConnus() const {
  std::vector<TEleve*> trouves;
  for (TNoeud* noeud = Arbre.Premier(); noeud != nullptr; noeud = Arbre.Suivant(*noeud)) {
    TEleve* eleve = noeud->Objet.En<TEleve>();
    if (eleve != nullptr && ContientMots(Connu(*eleve), recherche_)) trouves.push_back(eleve);
  }
  if (Globals.Eleves != nullptr)
    for (TEleve& eleve : *Globals.Eleves)
      if (ContientMots(Connu(eleve), recherche_) && Arbre.TrouverObjet(&eleve) == nullptr)
        trouves.push_back(&eleve);
  return trouves;
}

bool TFrmMain::ChercherPartout(bool fiche) {
  std::vector<TEleve*> trouves = ElevesConnus();
  const QString cherche = recherche_.trimmed();
  if (trouves.size() == 1) {
    MontrerTrouves({});
    OuvrirEleve(*trouves.front(), fiche);
    Etat(TNiveauEtat::Neutre, u"Trouvé pour « %1 » : "_s.arg(cherche) % trouves.front()->NomComplet());
    return true;
  }
  LaisserEleve();
  if (trouves.empty())
    Etat(TNiveauEtat::Alerte, u"Aucun élève n'est trouvé pour « %1 »"_s.arg(cherche));
  else
    Etat(TNiveauEtat::Neutre, u"%1 pour « %2 » : choisissez dans la liste"_s.arg(
                                  CompterEleves(static_cast<qint64>(trouves.size())), cherche));
  MontrerTrouves(std::move(trouves));
  return !trouves_.empty();
}

void TFrmMain::OuvrirMatricule() {
  const QString matricule = std::exchange(matricule_, {});
  TEleve* eleve = Globals.Eleves != nullptr ? Globals.Eleves->TrouverParCode(matricule) : nullptr;
  if (eleve != nullptr) {
    OuvrirEleve(*eleve, true);
    Etat(TNiveauEtat::Neutre, u"Matricule %1 : "_s.arg(matricule) % eleve->NomComplet());
    return;
  }
  LaisserEleve();
  Etat(TNiveauEtat::Alerte, u"Aucun élève de l'année ne porte le matricule « %1 »"_s.arg(matricule));
}

// The question comes when there is another node to go back to, or none at all; a single one needs no word.
void TFrmMain::btnRechercheClick() {
  if (enTravail_) return;
  if (!matricule_.isEmpty()) return OuvrirMatricule();
  if (recherche_.trimmed().isEmpty()) return;
  TNoeud* premier = NoeudQuiCommence(Arbre.Premier());
  if (premier == nullptr && ChercherPartout(true)) return;
  if (premier != nullptr && NoeudQuiCommence(Arbre.Suivant(*premier)) == nullptr)
    return OuvrirNoeud(*premier, true);
  for (;;) {
    const TNoeud* choisi = Arbre.Selection();
    TNoeud* debut = choisi != nullptr ? Arbre.Suivant(*choisi) : Arbre.Premier();
    if (TNoeud* noeud = NoeudQuiCommence(debut)) return OuvrirNoeud(*noeud, true);
    if (!Contexte.Dialogues().Confirmer(
            u"Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?"_s)) {
      if (premier == nullptr) LaisserEleve();  // the first node of the tree is not what was looked for
      return;
    }
    Arbre.Selectionner(Arbre.Premier());
  }
}
