// The columns of a list: their widths, and what the user made of them.
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>
#include <numeric>

#include "core/reglages_poste.h"
#include "ui/commun/largeurs_colonnes.h"
#include "ui/commun/modele_grille.h"
#include "ui/commun/tete_de_liste.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

/// A name needs the one at least, and is given up to the other, or up to the width that its column
/// declares, at the cost of the other columns.
constexpr int kMoindreNom = 140;
constexpr int kAssezPourUnNom = 220;

int Marges(const VueGrille& vue) {
  return 2 * (vue.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &vue) + 1);
}

/// What a column takes when its texts stand in their short form; 0 when they have none.
int LargeurCourte(const VueGrille& vue, int colonne) {
  const int marges = Marges(vue);
  const TGrille& grille = vue.Grille();
  int largeur = 0;
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne) {
    const QVariant court = TexteCourt(grille, ligne, colonne);
    if (court.isValid())
      largeur = std::max(largeur, vue.Mesures().Largeur(court.toString(), vue.font()) + marges);
  }
  return largeur;
}

/// Whether a text that has a shorter form would be cut.
bool Coupe(const VueGrille& vue, int colonne) {
  const int place = vue.columnWidth(colonne) - Marges(vue);
  const TGrille& grille = vue.Grille();
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne)
    if (TexteCourt(grille, ligne, colonne).isValid() &&
        vue.Mesures().Largeur(grille.Texte(ligne, colonne), vue.font()) > place)
      return true;
  return false;
}

}  // namespace

int VueGrille::ColonneSouple() const {
  if (souple_ >= 0) return souple_;
  int plusLarge = 0;
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne)
    if (!EstADroite(grille_.Colonne(colonne).Genre) &&
        grille_.Colonne(colonne).Largeur > grille_.Colonne(plusLarge).Largeur)
      plusLarge = colonne;
  return plusLarge;
}

void VueGrille::DefinirColonneSouple(int colonne) {
  souple_ = colonne;
  PoserColonnes();
}

void VueGrille::PoserColonnes() {
  const QScopedValueRollback pendant(enCours_, true);
  header()->setMinimumSectionSize(Theme::Px(32));
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) {
    header()->setSectionResizeMode(
        colonne, colonne == ColonneSouple() ? QHeaderView::Stretch : QHeaderView::Interactive);
    header()->resizeSection(colonne, Theme::Px(grille_.Colonne(colonne).Largeur));
  }
  Rappeler();
  RepartirPlusTard();
}

void VueGrille::RepartirPlusTard() {
  if (std::exchange(aRepartir_, true)) return;
  QMetaObject::invokeMethod(this, &VueGrille::Repartir, Qt::QueuedConnection);
}

void VueGrille::Accorder(VueGrille& a, VueGrille& b) {
  a.jumelle_ = &b;
  b.jumelle_ = &a;
  a.SuivreLargeurs(b);
  b.SuivreLargeurs(a);
}

// What the other one was given for want of room is not kept as a width that the user drew.
void VueGrille::SuivreLargeurs(const VueGrille& autre) {
  connect(autre.header(), &QHeaderView::sectionResized, this, [this, &autre](int colonne, int, int largeur) {
    if (colonne == autre.ColonneSouple() || header()->sectionSize(colonne) == largeur) return;
    const QScopedValueRollback pendant(enCours_, enCours_ || autre.enCours_);
    header()->resizeSection(colonne, largeur);
  });
}

void VueGrille::DefinirSommes(std::vector<int> largeurs) {
  if (sommes_ == largeurs) return;
  sommes_ = std::move(largeurs);
  placeElargie_ = -1;
  RepartirPlusTard();
}

/// A sum may be wider than the amounts over it.
int VueGrille::LargeurMontants(int colonne) const {
  const auto rang = static_cast<std::size_t>(colonne);
  return std::max(sizeHintForColumn(colonne), rang < sommes_.size() ? sommes_[rang] : 0);
}

int VueGrille::LargeurContenu(int colonne) const {
  const int ici = std::max(sizeHintForColumn(colonne), LargeurDuTitre(*header(), colonne));
  return jumelle_ ? std::max(ici, jumelle_->sizeHintForColumn(colonne)) : ici;
}

/// The least that a column may come down to beside a name that lacks room.
int VueGrille::MoindreContenu(int colonne) const {
  const int contenu = LargeurContenu(colonne);
  if (EstMontant(grille_.Colonne(colonne).Genre))
    return std::max({contenu, header()->sectionSizeHint(colonne), LargeurMontants(colonne)});
  int court = LargeurCourte(*this, colonne);
  if (jumelle_) court = std::max(court, LargeurCourte(*jumelle_, colonne));
  return court == 0 ? contenu : std::min(contenu, std::max(court, LargeurDuTitre(*header(), colonne)));
}

/// A name that has so much room takes none of the others', up to the width that its column declares.
bool VueGrille::EstAssezPourLeNom(int reste) const {
  if (reste < Theme::Px(kAssezPourUnNom)) return false;
  const int souple = ColonneSouple();
  return tracees_ || reste >= Theme::Px(grille_.Colonne(souple).Largeur) || reste >= LargeurContenu(souple);
}

/// What each column would take; the least of those that may give way is measured only when it matters.
std::vector<TBesoinColonne> VueGrille::Besoins(int place) const {
  const int souple = ColonneSouple();
  std::vector<TBesoinColonne> besoins;
  int reste = place;
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) {
    int voulue = Theme::Px(grille_.Colonne(colonne).Largeur);
    if (colonne == souple)
      voulue = 0;
    else if (EstMontant(grille_.Colonne(colonne).Genre))
      voulue = std::max(voulue, LargeurMontants(colonne));
    besoins.push_back({voulue, voulue});
    reste -= voulue;
  }
  if (EstAssezPourLeNom(reste)) {
    if (tracees_) return besoins;
    // Measured once for a width: the columns of a record do not jump from pupil to pupil, nor cost at each.
    if (placeElargie_ != place || elargis_.size() != besoins.size()) {
      const int declare = std::max(grille_.Colonne(souple).Largeur, kMoindreNom);
      const int nom = std::clamp(LargeurContenu(souple), Theme::Px(kMoindreNom), Theme::Px(declare));
      Elargir(besoins, reste - nom);
      elargis_ = besoins;
      placeElargie_ = grille_.NombreLignes() > 0 ? place : -1;
    }
    return elargis_;
  }
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) {
    TBesoinColonne& besoin = besoins[static_cast<std::size_t>(colonne)];
    if (colonne == souple) {
      const int contenu = LargeurContenu(colonne);
      besoin = {std::min(contenu, Theme::Px(std::max(grille_.Colonne(souple).Largeur, kAssezPourUnNom))),
                std::min(contenu, Theme::Px(kMoindreNom))};
    } else {
      besoin.Moindre = std::min(besoin.Voulue, MoindreContenu(colonne));
    }
  }
  return besoins;
}

/// Room that a name does not need goes to what is cut, cells before titles, and first to what lacks least;
/// widths that the user drew stay.
void VueGrille::Elargir(std::vector<TBesoinColonne>& besoins, int surplus) const {
  for (const bool titres : {false, true}) {
    std::vector<std::pair<int, std::size_t>> manques;
    for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) {
      const auto rang = static_cast<std::size_t>(colonne);
      const int contenu = titres ? LargeurContenu(colonne) : sizeHintForColumn(colonne);
      if (colonne != ColonneSouple() && contenu > besoins[rang].Voulue)
        manques.emplace_back(contenu - besoins[rang].Voulue, rang);
    }
    std::ranges::sort(manques);
    for (const auto& [manque, rang] : manques) {
      const int plus = std::min(manque, std::max(surplus, 0));
      besoins[rang] = {besoins[rang].Voulue + plus, besoins[rang].Moindre + plus};
      surplus -= plus;
    }
  }
}

/// Of those that stand alike the narrowest gives the width.
void VueGrille::Egaliser(std::vector<int>& largeurs) const {
  int commune = 0;
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) {
    const int largeur = largeurs[static_cast<std::size_t>(colonne)];
    if (grille_.Colonne(colonne).Egale) commune = commune == 0 ? largeur : std::min(commune, largeur);
  }
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne)
    if (grille_.Colonne(colonne).Egale) largeurs[static_cast<std::size_t>(colonne)] = commune;
}

/// An amount that is cut is another amount, and a name that is cut may be somebody else's: where the room is
/// short the other columns give way, and then the list scrolls sideways.
void VueGrille::Repartir() {
  const QScopedValueRollback pendant(enCours_, true);
  aRepartir_ = false;
  const int souple = ColonneSouple(), place = viewport()->width();
  if (souple >= grille_.NombreColonnes()) return;
  std::vector<int> largeurs = RepartirLargeurs(Besoins(place), souple, place);
  if (!tracees_) Egaliser(largeurs);
  const bool tient = std::accumulate(largeurs.begin(), largeurs.end(), 0) <= place;
  header()->setSectionResizeMode(souple, tient ? QHeaderView::Stretch : QHeaderView::Interactive);
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne)
    if (colonne != souple || !tient)
      header()->resizeSection(colonne, largeurs[static_cast<std::size_t>(colonne)]);
  courtes_.clear();
  for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne) Abreger(colonne);
}

/// All texts of a column stand in short as soon as one of them would be cut.
void VueGrille::Abreger(int colonne) {
  if (Coupe(*this, colonne) || (jumelle_ && Coupe(*jumelle_, colonne)))
    courtes_.insert(colonne);
  else
    courtes_.erase(colonne);
}

/// Once the hand has let go of the column, not at each pixel.
void VueGrille::RetenirBientot() {
  if (enCours_ || ecran_.isEmpty() || std::exchange(aRetenir_, true)) return;
  QTimer::singleShot(500, this, &VueGrille::Retenir);
}

/// Under the user: columns in their order with their widths at 10 points, and what they are put in
/// order by. By title, so that a list that has changed starts afresh.
void VueGrille::Retenir() {
  if (!std::exchange(aRetenir_, false)) return;
  QJsonArray colonnes;
  for (int rang = 0; rang < header()->count(); ++rang) {
    const TColonneGrille& colonne = grille_.Colonne(header()->logicalIndex(rang));
    colonnes.append(QJsonArray{colonne.Titre, colonne.Largeur});
  }
  QJsonObject retenu{{u"colonnes"_s, colonnes}};
  if (const int tri = header()->sortIndicatorSection(); tri >= 0)
    retenu[u"tri"_s] =
        QJsonArray{grille_.Colonne(tri).Titre, header()->sortIndicatorOrder() == Qt::AscendingOrder};
  TReglagesPoste().Ecrire(TRacine::Utilisateur, u"Grilles/" % ecran_,
                          QString::fromUtf8(QJsonDocument(retenu).toJson(QJsonDocument::Compact)));
}

void VueGrille::Rappeler() {
  if (ecran_.isEmpty()) return;
  const QString texte = TReglagesPoste().Lire(TRacine::Utilisateur, u"Grilles/" % ecran_);
  const QJsonObject retenu = QJsonDocument::fromJson(texte.toUtf8()).object();
  const QJsonArray colonnes = retenu[u"colonnes"_s].toArray();
  const auto colonneDe = [this](const QString& titre) {
    for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne)
      if (grille_.Colonne(colonne).Titre == titre) return colonne;
    return -1;
  };
  if (colonnes.size() != grille_.NombreColonnes()) return;
  for (const auto& valeur : colonnes)
    if (colonneDe(valeur[0].toString()) < 0) return;
  for (int rang = 0; rang < static_cast<int>(colonnes.size()); ++rang) {
    const int colonne = colonneDe(colonnes[rang][0].toString());
    const int largeur = std::max(colonnes[rang][1].toInt(), 24);
    header()->moveSection(header()->visualIndex(colonne), rang);
    if (colonne == ColonneSouple()) continue;
    tracees_ = tracees_ || largeur != grille_.Colonne(colonne).Largeur;
    grille_.ChangerLargeur(colonne, largeur);
    header()->resizeSection(colonne, Theme::Px(largeur));
  }
  const QJsonArray tri = retenu[u"tri"_s].toArray();
  if (tri.size() == 2)
    sortByColumn(colonneDe(tri[0].toString()), tri[1].toBool() ? Qt::AscendingOrder : Qt::DescendingOrder);
}
