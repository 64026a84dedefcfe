#include "report/layout/pagination.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr float kTolerance = 0.05F;

bool EstPied(const TBandeModele& bande) { return bande.Sorte == TSorteBande::PiedPage; }

}  // namespace

void TPagination::Commencer(const TPageModele& page) {
  Finir();
  modele_ = &page;
  premiere_ = true;
}

void TPagination::NouvelleSuite() {
  Finir();
  premiere_ = true;
}

void TPagination::Finir() {
  if (ouverte_ && !vide_) return Fermer(true);
  if (ouverte_) {
    document_.Pages.pop_back();
    std::erase_if(numeros_, [&](const TNumerosPage& n) { return n.Page == document_.Pages.size(); });
  }
  ouverte_ = vide_ = false;
}

void TPagination::Preparer(const TPosition& position) {
  if (ouverte_) return;
  Ouvrir(position, std::exchange(premiere_, false));
  vide_ = true;
}

/// Height of the footers that are on every page, or of those on a last page only. Their procedures go
/// first: one may hide its footer, or show it again.
float TPagination::HauteurPied(bool dernierePage, const TPosition& position) {
  const TPosition avant = std::exchange(contexte_.Position, position);
  float hauteur = 0;
  for (const TBandeModele& bande : modele_->Bandes) {
    if (!EstPied(bande) || bande.DernierePage != dernierePage) continue;
    contexte_.Appeler(bande.AvantImpression, bande.Nom, bande);
    const TEtatObjet& etat = contexte_.Etats.De(bande);
    if (etat.Visible) hauteur += etat.Hauteur;
  }
  contexte_.Position = avant;
  return hauteur;
}

void TPagination::Ouvrir(const TPosition& position, bool premiere) {
  TPagePreparee page;
  page.Largeur = modele_->Largeur;
  page.Hauteur = modele_->Hauteur;
  document_.Pages.push_back(std::move(page));
  ouverte_ = true;
  derniere_ = position;
  contexte_.Compteurs.Page = static_cast<int>(document_.Pages.size());
  y_ = modele_->Marge;
  plusBas_ = y_;
  colonne_ = -1;
  const TPosition avant = std::exchange(contexte_.Position, position);
  for (const TBandeModele& bande : modele_->Bandes) {
    if (bande.Sorte != TSorteBande::EntetePage || (premiere && bande.PremierePageSans)) continue;
    if (const auto formee = formeur_.Former(bande)) {
      Poser(*formee, 0, y_);
      y_ += formee->Hauteur;
    }
  }
  contexte_.Position = avant;
  debut_ = y_;
}

/// Where the body must end, for the footers of the page.
void TPagination::Reserver(const TPosition& position) {
  bas_ = modele_->Hauteur - modele_->Marge - HauteurPied(false, position);
}

void TPagination::Fermer(bool derniere) {
  const TPosition avant = std::exchange(contexte_.Position, derniere_);
  std::vector<TBandeFormee> pieds;
  float hauteur = 0;
  for (const TBandeModele& bande : modele_->Bandes) {
    if (!EstPied(bande) || (bande.DernierePage && !derniere)) continue;
    if (auto formee = formeur_.Former(bande)) {
      hauteur += formee->Hauteur;
      pieds.push_back(std::move(*formee));
    }
  }
  contexte_.Position = avant;
  float y = modele_->Hauteur - modele_->Marge - hauteur;
  if (!pieds.empty() && y + kTolerance < std::max(debut_, plusBas_)) NoterTropHaute(pieds.front());
  for (const TBandeFormee& pied : pieds) {
    Poser(pied, 0, y);
    y += pied.Hauteur;
  }
  ouverte_ = false;
}

void TPagination::Changer(const TPosition& position) {
  Fermer(false);
  Ouvrir(position, false);
  Reserver(position);
}

void TPagination::Poser(const TBandeFormee& bande, float x, float y) {
  TPagePreparee& page = Page();
  const std::size_t premier = page.Elements.size();
  const float dx = modele_->Marge + bande.X + x;
  for (const TElement& element : bande.Elements) {
    page.Elements.push_back(element);
    Deplacer(page.Elements.back(), dx, y);
  }
  for (TNumeros numeros : bande.Numeros) {
    numeros.Element += premier;
    numeros.X += dx;
    const int colonne = bande.Modele->Colonnes > 1 ? colonne_ : -1;
    numeros_.push_back({document_.Pages.size() - 1, colonne, std::move(numeros)});
    EcrireNumeros(numeros_.back(), {});
  }
  derniere_ = bande.Position;
}

/// Columns stand side by side: the whole of them counts for its tallest.
float TPagination::HauteurBloc(const std::vector<TBandeFormee>& bandes, std::size_t debut,
                               std::size_t fin) const {
  float hauteur = 0, cellules = 0;
  for (std::size_t i = debut; i < fin; ++i) {
    if (bandes[i].Modele->Colonnes > 1)
      cellules = std::max(cellules, bandes[i].Hauteur);
    else
      hauteur += bandes[i].Hauteur;
  }
  return hauteur + cellules;
}

void TPagination::Placer(std::vector<TBandeFormee> bandes, bool complet) {
  if (bandes.empty()) return;
  Preparer(bandes.front().Position);
  if (std::exchange(vide_, false)) Reserver(bandes.front().Position);
  const TCoupures coupures = TrouverCoupures(bandes, bas_ - debut_);
  const float dernierPied = complet ? HauteurPied(true, bandes.back().Position) : 0;
  for (std::size_t debut = 0; debut < bandes.size();) {
    std::size_t fin = debut + 1;
    while (fin < bandes.size() && !coupures.Avant[fin]) ++fin;
    const bool dernier = complet && fin == bandes.size();
    const float besoin = HauteurBloc(bandes, debut, fin) + (dernier ? dernierPied : 0);
    const bool saute = bandes[debut].Modele->NouvellePage && y_ > debut_;
    if (saute || (plusBas_ > debut_ && !TientIci(bandes, debut, fin, besoin))) {
      Changer(bandes[debut].Position);
      Repeter(bandes, coupures.Tetes[debut]);
    }
    for (std::size_t i = debut; i < fin; ++i) PlacerUne(bandes[i], bandes, coupures.Tetes[i]);
    debut = fin;
  }
  FermerColonnes();
  if (dernierPied > 0 && y_ + dernierPied > bas_ + kTolerance) Changer(bandes.back().Position);
}

/// Cells find their own place; what stands below them must still fit under the tallest column.
bool TPagination::TientIci(const std::vector<TBandeFormee>& bandes, std::size_t debut, std::size_t fin,
                           float besoin) const {
  const float cellule = bandes[debut].Modele->Colonnes > 1 ? bandes[debut].Hauteur : 0;
  if (cellule == 0) return plusBas_ + besoin <= bas_ + kTolerance;
  const bool suite = std::any_of(bandes.begin() + static_cast<std::ptrdiff_t>(debut),
                                 bandes.begin() + static_cast<std::ptrdiff_t>(fin),
                                 [](const TBandeFormee& bande) { return bande.Modele->Colonnes == 1; });
  return !suite || plusBas_ + besoin - cellule <= bas_ + kTolerance;
}

void TPagination::Repeter(const std::vector<TBandeFormee>& bandes, const std::vector<std::size_t>& tetes) {
  for (const std::size_t tete : tetes) {
    Poser(bandes[tete], 0, y_);
    y_ += bandes[tete].Hauteur;
  }
  debut_ = y_;
}

void TPagination::PlacerUne(const TBandeFormee& bande, const std::vector<TBandeFormee>& bandes,
                            const std::vector<std::size_t>& tetes) {
  float x = 0;
  if (bande.Modele->Colonnes > 1) {
    if (!DansUneColonne(bande)) {
      Changer(bande.Position);
      Repeter(bandes, tetes);
      DansUneColonne(bande);
    }
    x = static_cast<float>(colonne_) * bande.Modele->LargeurColonne;
  } else {
    FermerColonnes();
    // A block higher than a page breaks between any two bands; a band is never split.
    if (y_ > debut_ && y_ + bande.Hauteur > bas_ + kTolerance) {
      Changer(bande.Position);
      Repeter(bandes, tetes);
    }
  }
  if (y_ + bande.Hauteur > bas_ + kTolerance) NoterTropHaute(bande);
  Poser(bande, x, y_);
  for (const TSignet& signet : bande.Signets) Page().Signets.push_back(signet);
  y_ += bande.Hauteur;
  plusBas_ = std::max(plusBas_, y_);
}

/// Finds the place of a cell; false when the last column of the page is full.
bool TPagination::DansUneColonne(const TBandeFormee& bande) {
  if (colonne_ < 0) {
    colonne_ = 0;
    hautColonnes_ = y_;
  }
  if (y_ + bande.Hauteur <= bas_ + kTolerance || y_ <= debut_) return true;
  if (colonne_ + 1 >= bande.Modele->Colonnes) return false;
  ++colonne_;
  y_ = hautColonnes_;
  return true;
}

void TPagination::FermerColonnes() {
  if (colonne_ < 0) return;
  colonne_ = -1;
  y_ = plusBas_;
}

void TPagination::PoserNumeros() {
  const QString total = QString::number(document_.Pages.size());
  for (const TNumerosPage& place : numeros_) EcrireNumeros(place, total);
}

void TPagination::EcrireNumeros(const TNumerosPage& place, const QString& total) {
  const TNumeros& numeros = place.Numeros;
  QString texte = numeros.Texte;
  texte.replace(kMarquePage, QString::number(place.Page + 1))
      .replace(kMarqueTotal, total)
      .replace(kMarqueColonne, QString::number(place.Colonne + 1));
  auto& element = std::get<TElementTexte>(document_.Pages[place.Page].Elements[numeros.Element]);
  element.Forme = Former(texte, numeros.Style);
  const float reste = numeros.Largeur > 0 ? numeros.Largeur - element.Forme->Largeur : 0;
  element.X = numeros.X;
  if (numeros.Alignement == TAlignementTexte::Droite) element.X += reste;
  if (numeros.Alignement == TAlignementTexte::Centre) element.X += reste / 2;
}

/// It stands over something all the same: a page with a fault is better than none.
void TPagination::NoterTropHaute(const TBandeFormee& bande) {
  contexte_.Noter(*bande.Modele, bande.Modele->Nom,
                  u"la bande est plus haute que la place qui reste sur une page."_s);
}
