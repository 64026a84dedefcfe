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

// The record opens at the start, with no screen open, and where it is asked for on a screen that does not
// take up the pupil.
void TFrmMain::OuvrirNoeud(TNoeud& noeud, bool fiche) {
  Arbre.Selectionner(&noeud);
  Etat(TNiveauEtat::Neutre, TexteRang());
  const TCommandePrincipale* ouverte = CommandeOuverte();
  const bool reste = Panneau.Courante() != nullptr && (!fiche || (ouverte != nullptr && ouverte->PrendEleve));
  if (noeud.Objet.En<TEleve>() == nullptr || reste) return;
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

void TFrmMain::MontrerTrouves(std::vector<TNoeud*> trouves) {
  if (trouves_.empty() && trouves.empty()) return;
  trouves_ = std::move(trouves);
  SurTrouves();
}

void TFrmMain::ChoisirTrouve(int rang) {
  if (rang < 0 || rang >= static_cast<int>(trouves_.size())) return;
  TNoeud& noeud = *trouves_[static_cast<std::size_t>(rang)];
  MontrerTrouves({});
  OuvrirNoeud(noeud, true);
}

bool TFrmMain::ChercherPartout(bool fiche) {
  std::vector<TNoeud*> trouves;
  for (TNoeud* noeud = Arbre.Premier(); noeud != nullptr; noeud = Arbre.Suivant(*noeud)) {
    const TEleve* eleve = noeud->Objet.En<TEleve>();
    if (eleve != nullptr && ContientMots(Connu(*eleve), recherche_)) trouves.push_back(noeud);
  }
  const QString cherche = recherche_.trimmed();
  if (trouves.size() == 1) {
    MontrerTrouves({});
    OuvrirNoeud(*trouves.front(), fiche);
    Etat(TNiveauEtat::Neutre, u"Trouvé pour « %1 » : "_s.arg(cherche) % trouves.front()->Texte);
    return true;
  }
  LaisserEleve();
  if (!trouves.empty())
    Etat(TNiveauEtat::Neutre, u"%1 pour « %2 » : choisissez dans la liste"_s.arg(
                                  CompterEleves(static_cast<qint64>(trouves.size())), cherche));
  MontrerTrouves(std::move(trouves));
  return !trouves_.empty() || ChercherHorsListe(fiche);
}

/// Pupils without a site stand in no list, and are known by the same words. A single one is opened on Enter.
bool TFrmMain::ChercherHorsListe(bool fiche) {
  std::vector<TEleve*> trouves;
  for (TEleve& eleve : *Globals.Eleves)
    if (ContientMots(Connu(eleve), recherche_) && Arbre.TrouverObjet(&eleve) == nullptr)
      trouves.push_back(&eleve);
  const QString cherche = recherche_.trimmed();
  if (trouves.empty()) {
    Etat(TNiveauEtat::Alerte, u"Aucun élève n'est trouvé pour « %1 »"_s.arg(cherche));
    return false;
  }
  if (fiche && trouves.size() == 1) {
    OuvrirHorsListe(*trouves.front());
    return true;
  }
  Etat(TNiveauEtat::Alerte, CompterEleves(std::ssize(trouves)) %
                                u" hors de la liste, sans implantation, pour « %1 »"_s.arg(cherche) %
                                (trouves.size() == 1 ? u" : Entrée ouvre la fiche" : u""));
  return true;
}

void TFrmMain::OuvrirHorsListe(TEleve& eleve) {
  Globals.EleveCourant = &eleve;
  Globals.ClasseCourante = eleve.Classe;
  Diffuser(TCodeMessage::EleveChange);
  const TGestionnaire eleves = TGestionnaire::AdvGlowButton2Click;
  if (PageVisible(TPage::PgEleve) && CommandeActive(Commande(eleves))) Executer(eleves);
  Etat(TNiveauEtat::Alerte, eleve.NomComplet() % u" : sans implantation, il n'est pas dans la liste");
}

void TFrmMain::OuvrirMatricule() {
  const QString matricule = std::exchange(matricule_, {});
  TEleve* eleve = Globals.Eleves != nullptr ? Globals.Eleves->TrouverParCode(matricule) : nullptr;
  TNoeud* noeud = eleve != nullptr ? Arbre.TrouverObjet(eleve) : nullptr;
  if (noeud != nullptr) {
    OuvrirNoeud(*noeud, true);
    Etat(TNiveauEtat::Neutre, u"Matricule %1 : "_s.arg(matricule) % noeud->Texte);
    return;
  }
  LaisserEleve();
  if (eleve != nullptr) return OuvrirHorsListe(*eleve);
  Etat(TNiveauEtat::Alerte, u"Aucun élève de la liste ne porte le matricule « %1 »"_s.arg(matricule));
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
            u"Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?"_s))
      return premier == nullptr ? LaisserEleve() : void();
    Arbre.Selectionner(Arbre.Premier());
  }
}
