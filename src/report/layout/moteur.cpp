#include "report/layout/moteur.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSousRapportsImbriques = 8;

const TBandeModele* Premiere(const TPageModele& page, TSorteBande sorte) {
  const auto i = std::ranges::find(page.Bandes, sorte, &TBandeModele::Sorte);
  return i == page.Bandes.end() ? nullptr : &*i;
}

bool Existe(const TPageModele& page, TSorteBande sorte) { return Premiere(page, sorte) != nullptr; }

int NiveauDe(TSorteBande sorte) {
  if (sorte == TSorteBande::Detail) return 1;
  return sorte == TSorteBande::SousDetail ? 2 : 0;
}

/// The kind of the data band to which a head or foot belongs; none when it belongs to the whole page.
std::optional<TSorteBande> JeuDe(const TPageModele& page, const TBandeModele& bande) {
  if (bande.Jeu.isEmpty()) return {};
  for (const TBandeModele& autre : page.Bandes)
    if (autre.Nom.compare(bande.Jeu, Qt::CaseInsensitive) == 0) return autre.Sorte;
  return {};
}

}  // namespace

TMoteur::TMoteur(TContexteImpression& contexte, TDocumentPrepare& document)
    : contexte_(contexte), formeur_(contexte), pagination_(contexte, formeur_, document) {
  for (const TPageModele& page : contexte.Modele.Pages)
    if (!page.SousRapport) pages_.push_back(&page);
}

bool TMoteur::Sort(const TBandeModele& bande) const {
  const int colonnes = contexte_.Rapport.NombreColonnes();
  return !contexte_.Rapport.ModeColonnes() ||
         (colonnes >= bande.ColonnesMin && colonnes <= bande.ColonnesMax);
}

/// Of the text that takes the width of its column, or of that of the reference column.
TStyle TMoteur::StyleColonne(const TPageModele& page, TSorteBande sorte, TSorteBande reference) const {
  for (const TSorteBande cherchee : {sorte, reference})
    for (const TBandeModele& bande : page.Bandes) {
      if (bande.Sorte != cherchee || !Sort(bande)) continue;
      const auto objet = std::ranges::find_if(bande.Objets, [](const TObjetModele& o) {
        return o.Sorte == TSorteObjet::Texte && o.Largeur <= 0;
      });
      if (objet != bande.Objets.end()) return objet->Style;
    }
  return {};
}

bool TMoteur::ParSuites() const {
  return std::ranges::all_of(pages_, [](const TPageModele* page) {
    const TBandeModele* maitre = Premiere(*page, TSorteBande::Maitre);
    return maitre != nullptr && maitre->NouvellePage;
  });
}

bool TMoteur::Continuer() {
  if (etape_ == TEtape::Fin || pages_.empty()) return false;
  const bool suites = ParSuites();
  if (etape_ == TEtape::Debut) CommencerPage();
  if (!parcours_->Fini(TJeu::Maitre)) {
    const TParcours depart = *parcours_;
    const auto lignes = lignes_;
    for (std::size_t i = suites ? 0 : page_; i < (suites ? pages_.size() : page_ + 1); ++i) {
      parcours_.emplace(depart);
      lignes_ = lignes;
      if (suites && pages_.size() > 1) pagination_.Commencer(*pages_[i]);
      LigneMaitre(*pages_[i]);
    }
    parcours_->Suivant(TJeu::Maitre);
    return true;
  }
  FinirPage();
  page_ = suites ? pages_.size() : page_ + 1;
  etape_ = page_ < pages_.size() ? TEtape::Debut : TEtape::Fin;
  if (etape_ == TEtape::Fin) pagination_.PoserNumeros();
  return true;
}

void TMoteur::CommencerPage() {
  etape_ = TEtape::Lignes;
  parcours_.emplace(contexte_.Rapport);
  parcours_->Premier(TJeu::Maitre);
  Suivre();
  contexte_.Compteurs = {};
  lignes_ = {};
  bandes_.clear();
  const TPageModele& page = *pages_[page_];
  pagination_.Commencer(page);
  if (contexte_.Rapport.ModeColonnes())
    colonnes_ = PlacesColonnes(contexte_.Rapport, page.Largeur - 2 * page.Marge,
                               {StyleColonne(page, TSorteBande::EnteteColonnes, TSorteBande::Entete),
                                StyleColonne(page, TSorteBande::Colonnes, TSorteBande::Maitre)});
  const TBandeModele* maitre = Premiere(page, TSorteBande::Maitre);
  if (!parcours_->Fini(TJeu::Maitre) && !(maitre != nullptr && maitre->NouvellePage))
    pagination_.Preparer(contexte_.Position);
  Ajouter(page, TSorteBande::Entete, TRole::Seule, -1, 0);
  if (!parcours_->Fini(TJeu::Maitre)) AjouterDe(page, TSorteBande::Entete, TSorteBande::Maitre, 0);
}

void TMoteur::FinirPage() {
  const TPageModele& page = *pages_[page_];
  if (parcours_->NombreLignes(TJeu::Maitre) > 0) AjouterDe(page, TSorteBande::Pied, TSorteBande::Maitre, 0);
  Ajouter(page, TSorteBande::Resume, TRole::Seule, -1, 0);
  pagination_.Placer(std::move(bandes_), true);
  bandes_.clear();
  pagination_.Finir();
}

void TMoteur::LigneMaitre(const TPageModele& page) {
  Suivre();
  const TBandeModele* maitre = Premiere(page, TSorteBande::Maitre);
  const bool saute =
      NoeudVide() && Existe(page, TSorteBande::Detail) && !ImprimeSiVide(page, TSorteBande::Maitre);
  const bool suite = maitre != nullptr && maitre->NouvellePage && !saute;
  if (suite) {
    if (!bandes_.empty()) pagination_.Placer(std::move(bandes_), true);
    bandes_.clear();
    pagination_.NouvelleSuite();
  }
  Compter(0, lignes_[0] + 1);
  if (suite) pagination_.Preparer(contexte_.Position);
  const TPosition ici = contexte_.Position;
  if (!saute) Ajouter(page, TSorteBande::Maitre, TRole::Ligne, 0, 0);
  if (EstSur(ici)) Details(page, 0);
  if (suite) {
    pagination_.Placer(std::move(bandes_), true);
    bandes_.clear();
  }
}

void TMoteur::Details(const TPageModele& page, float x) {
  parcours_->Premier(TJeu::Detail);
  if (parcours_->Fini(TJeu::Detail)) return;
  Suivre();
  AjouterDe(page, TSorteBande::Entete, TSorteBande::Detail, x);
  for (int ligne = 1; !parcours_->Fini(TJeu::Detail); ++ligne) {
    Suivre();
    Compter(1, ligne);
    const bool saute =
        NoeudVide() && Existe(page, TSorteBande::SousDetail) && !ImprimeSiVide(page, TSorteBande::Detail);
    const TPosition ici = contexte_.Position;
    if (!saute) Ajouter(page, TSorteBande::Detail, TRole::Ligne, 1, x);
    if (EstSur(ici)) SousDetails(page, x);
    parcours_->Suivant(TJeu::Detail);
  }
  AjouterDe(page, TSorteBande::Pied, TSorteBande::Detail, x);
}

void TMoteur::SousDetails(const TPageModele& page, float x) {
  parcours_->Premier(TJeu::SousDetail);
  if (parcours_->Fini(TJeu::SousDetail)) return;
  Suivre();
  AjouterDe(page, TSorteBande::Entete, TSorteBande::SousDetail, x);
  for (int ligne = 1; !parcours_->Fini(TJeu::SousDetail); ++ligne) {
    Suivre();
    Compter(2, ligne);
    Ajouter(page, TSorteBande::SousDetail, TRole::Ligne, 2, x);
    parcours_->Suivant(TJeu::SousDetail);
  }
  AjouterDe(page, TSorteBande::Pied, TSorteBande::SousDetail, x);
}

void TMoteur::Compter(std::size_t niveau, int ligne) {
  contexte_.Compteurs.Ligne = ligne;
  contexte_.Compteurs.LigneTotale = ++lignes_[niveau];
}

void TMoteur::Ajouter(const TPageModele& page, TSorteBande sorte, TRole role, int niveau, float x) {
  for (const TBandeModele& bande : page.Bandes)
    if (bande.Sorte == sorte && Sort(bande) && (role != TRole::Seule || bande.Jeu.isEmpty()))
      AjouterBande(page, bande, role, niveau, x);
}

void TMoteur::AjouterDe(const TPageModele& page, TSorteBande sorte, TSorteBande jeu, float x) {
  const TRole role = sorte == TSorteBande::Pied ? TRole::Pied : TRole::Tete;
  for (const TBandeModele& bande : page.Bandes)
    if (bande.Sorte == sorte && Sort(bande) && JeuDe(page, bande) == jeu)
      AjouterBande(page, bande, role, NiveauDe(jeu), x);
}

void TMoteur::AjouterBande(const TPageModele& page, const TBandeModele& bande, TRole role, int niveau,
                           float x) {
  const bool enColonnes = !colonnes_.empty() && niveau == 0 && role != TRole::Pied;
  auto formee = enColonnes ? formeur_.Former(bande, colonnes_[0]) : formeur_.Former(bande);
  if (!formee) return;
  if (enColonnes)
    AjouterColonnes(page, role == TRole::Ligne ? TSorteBande::Colonnes : TSorteBande::EnteteColonnes,
                    *formee);
  formee->Role = role;
  formee->Niveau = niveau;
  formee->X = x;
  PoserSignet(*formee);
  bandes_.push_back(std::move(*formee));
  SousRapports(bande, niveau, x);
}

void TMoteur::AjouterColonnes(const TPageModele& page, TSorteBande sorte, TBandeFormee& ligne) {
  std::vector<std::pair<TBandeFormee, float>> cellules;
  float hauteur = ligne.Hauteur;
  parcours_->Premier(TJeu::Colonne);
  for (std::size_t i = 1; !parcours_->Fini(TJeu::Colonne) && i < colonnes_.size(); ++i) {
    Suivre();
    for (const TBandeModele& bande : page.Bandes) {
      if (bande.Sorte != sorte || !Sort(bande) || colonnes_[i].Largeur <= 0) continue;
      auto cellule = formeur_.Former(bande, colonnes_[i]);
      if (!cellule) continue;
      hauteur = std::max(hauteur, cellule->Hauteur);
      cellules.emplace_back(std::move(*cellule), colonnes_[i].X);
    }
    parcours_->Suivant(TJeu::Colonne);
  }
  parcours_->Premier(TJeu::Colonne);
  Suivre();
  // The tallest cell makes the row; the rules at the foot of all others follow.
  ligne.Agrandir(hauteur);
  for (auto& [cellule, x] : cellules) {
    cellule.Agrandir(hauteur);
    ligne.Joindre(std::move(cellule), x);
  }
}

/// The bands of a sub-report follow the band that names it. Its rows are walked once: who comes after it
/// finds none left.
void TMoteur::SousRapports(const TBandeModele& bande, int niveau, float x) {
  const TPosition ici = contexte_.Position;
  for (const TObjetModele& objet : bande.Objets) {
    if (objet.Sorte != TSorteObjet::SousRapport || !contexte_.Etats.De(objet).Visible) continue;
    const auto page = std::ranges::find(contexte_.Modele.Pages, objet.Texte.trimmed(), &TPageModele::Nom);
    if (page == contexte_.Modele.Pages.end() || profondeur_ >= kSousRapportsImbriques) {
      contexte_.Noter(bande, objet, u"le sous-rapport « %1 » manque."_s.arg(objet.Texte));
      continue;
    }
    ++profondeur_;
    Ajouter(*page, TSorteBande::Entete, TRole::Seule, niveau + 1, x + objet.X);
    if (EstSur(ici)) {
      if (niveau == 0 && Existe(*page, TSorteBande::Detail)) Details(*page, x + objet.X);
      if (niveau == 1 && Existe(*page, TSorteBande::SousDetail)) SousDetails(*page, x + objet.X);
    }
    Ajouter(*page, TSorteBande::Resume, TRole::Seule, niveau + 1, x + objet.X);
    --profondeur_;
  }
  contexte_.Position = ici;
}

void TMoteur::PoserSignet(TBandeFormee& bande) {
  if (bande.Signets.empty() || !contexte_.Impression.SignetsParClasse) return;
  for (TSignet& signet : bande.Signets) ++signet.Niveau;
  const QString classe = contexte_.Valeur(u"Classe"_s);
  if (classe != classe_) bande.Signets.insert(bande.Signets.begin(), {classe, 0});
  classe_ = classe;
}

bool TMoteur::ImprimeSiVide(const TPageModele& page, TSorteBande sorte) const {
  const TBandeModele* bande = Premiere(page, sorte);
  return bande != nullptr && bande->ImprimerSiVide;
}

/// Nothing hangs on the node at which the walk stands.
bool TMoteur::NoeudVide() const {
  const auto place = static_cast<std::size_t>(contexte_.Position.Curseur);
  const auto& plat = contexte_.Rapport.Plat();
  return place < plat.size() && plat[place].Noeud->Enfants.empty();
}
