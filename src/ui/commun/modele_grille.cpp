#include "ui/commun/modele_grille.h"

#include <QApplication>

#include "core/formats.h"
#include "core/mois.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/texte.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

QVariant ApparenceBarree(int role) {
  if (role == Qt::ForegroundRole) return Theme::Couleur(TRole::Secondaire);
  if (role == Qt::AccessibleDescriptionRole) return u"radié"_s;
  if (role != Qt::FontRole) return {};
  QFont police = QApplication::font();
  police.setStrikeOut(true);
  return police;
}

Qt::Alignment Alignement(TGenre genre) {
  return (EstADroite(genre) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

QVariant TexteCourt(const TGrille& grille, int ligne, int colonne) {
  const TColonneGrille& quoi = grille.Colonne(colonne);
  if (quoi.Abreger != nullptr) return quoi.Abreger(grille.Texte(ligne, colonne));
  const TGenre genre = quoi.Genre;
  const TValeurVue valeur = grille.Ligne(ligne).Valeur(colonne);
  if (const auto* jour = std::get_if<TJourAnnee>(&valeur)) return FormatDate(jour->Date);
  if (const int* mois = std::get_if<int>(&valeur); mois != nullptr && genre == TGenre::Mois)
    return *mois == 0 ? QVariant() : NomMoisCourt(*mois);
  const TDateTime* jour = std::get_if<TDateTime>(&valeur);
  if (jour == nullptr || *jour == 0.0 || genre != TGenre::DateLongue) return {};
  return TexteDe(TGenre::DateCourte, valeur);
}

ModeleGrille::ModeleGrille(TGrille& grille, QObject* parent) : QAbstractItemModel(parent), grille_(grille) {
  plan_ = Dresser();
}

ModeleGrille::TPlan ModeleGrille::Dresser() const {
  TPlan plan;
  plan.Colonnes = grille_.NombreColonnes();
  plan.Places.reserve(static_cast<size_t>(grille_.NombreLignes()));
  int sommet = -1;
  int rang = 0;
  for (int ligne = 0; ligne < grille_.NombreLignes(); ++ligne) {
    const bool tete = grille_.Ligne(ligne).Tete;
    if (!tete && sommet >= 0) {
      plan.Places.push_back({sommet, rang++});
      continue;
    }
    const int ici = static_cast<int>(plan.Sommets.size());
    plan.Places.push_back({-1, ici});
    plan.Sommets.push_back(ligne);
    if (tete) sommet = ici;
    rang = 0;
  }
  return plan;
}

void ModeleGrille::Suivre(int ligne) {
  if (ligne >= 0) {
    const QModelIndex debut = Index(ligne);
    emit dataChanged(debut, debut.siblingAtColumn(grille_.NombreColonnes() - 1));
    return;
  }
  beginResetModel();
  plan_ = Dresser();
  endResetModel();
}

int ModeleGrille::Ligne(const QModelIndex& index) const {
  if (!index.isValid()) return -1;
  const auto sommet = static_cast<size_t>(index.internalId());
  const auto rang = static_cast<size_t>(index.row());
  // On the first level the id is 0, below a head its rank and one.
  return sommet == 0 ? plan_.Sommets[rang] : plan_.Sommets[sommet - 1] + 1 + index.row();
}

QModelIndex ModeleGrille::Index(int ligne, int colonne) const {
  if (ligne < 0 || ligne >= static_cast<int>(plan_.Places.size())) return {};
  const TPlace& place = plan_.Places[static_cast<size_t>(ligne)];
  return createIndex(place.Rang, colonne, static_cast<quintptr>(place.Sommet + 1));
}

QModelIndex ModeleGrille::index(int rang, int colonne, const QModelIndex& parent) const {
  if (!hasIndex(rang, colonne, parent)) return {};
  return createIndex(rang, colonne, static_cast<quintptr>(parent.isValid() ? parent.row() + 1 : 0));
}

QModelIndex ModeleGrille::parent(const QModelIndex& enfant) const {
  const auto sommet = static_cast<int>(enfant.internalId());
  return sommet == 0 ? QModelIndex() : createIndex(sommet - 1, 0, quintptr{0});
}

int ModeleGrille::rowCount(const QModelIndex& parent) const {
  const int sommets = static_cast<int>(plan_.Sommets.size());
  if (!parent.isValid()) return sommets;
  if (parent.internalId() != 0 || parent.column() > 0) return 0;
  const int tete = plan_.Sommets[static_cast<size_t>(parent.row())];
  const int suivant = parent.row() + 1 < sommets ? plan_.Sommets[static_cast<size_t>(parent.row()) + 1]
                                                 : static_cast<int>(plan_.Places.size());
  return suivant - tete - 1;
}

QVariant ModeleGrille::data(const QModelIndex& index, int role) const {
  const int ligne = Ligne(index);
  const int colonne = index.column();
  if (ligne < 0) return {};
  switch (role) {
    case Qt::DisplayRole:
      return EstMontant(grille_.Colonne(colonne).Genre) ? TypographieMontant(grille_.Texte(ligne, colonne))
                                                        : grille_.Texte(ligne, colonne);
    case kTexteCourt:
      return TexteCourt(grille_, ligne, colonne);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Alignement(grille_.Colonne(colonne).Genre));
    case Qt::CheckStateRole:
      if (!grille_.CasesACocher || colonne != 0 || !ACase(ligne)) return {};
      return grille_.Ligne(ligne).Coche ? Qt::Checked : Qt::Unchecked;
    default:
      return Apparence(ligne, colonne, role);
  }
}

QVariant ModeleGrille::Apparence(int ligne, int colonne, int role) const {
  const TLigneGrille& vue = grille_.Ligne(ligne);
  if (role == Qt::FontRole && vue.Tete) return Theme::Gras();
  if (role == Qt::AccessibleDescriptionRole && vue.Tete && colonne == 0)
    return grille_.EstFerme(ligne) ? u"groupe fermé"_s : u"groupe ouvert"_s;
  if (vue.Barree && colonne == 0) return ApparenceBarree(role);
  const bool suit = grille_.Colonne(colonne).SuitEtat;
  if (vue.Tete || (colonne != grille_.ColonneEtat() && !suit)) return {};
  const TEtatGrille& etat = grille_.Etats.at(static_cast<size_t>(vue.Etat));
  if (etat.Icone.isEmpty()) return {};
  if (suit && role == Qt::FontRole) return Theme::Gras();
  if (!suit && role == Qt::DecorationRole) return Theme::Icone(etat.Icone, RoleDeEtat(etat));
  if (role == Qt::ForegroundRole) return Theme::Couleur(RoleDeEtat(etat));
  return {};
}

bool ModeleGrille::ACase(int ligne) const {
  return !grille_.Ligne(ligne).Tete && !grille_.Ligne(ligne).SansCase;
}

QVariant ModeleGrille::headerData(int colonne, Qt::Orientation sens, int role) const {
  if (sens != Qt::Horizontal || colonne < 0 || colonne >= grille_.NombreColonnes()) return {};
  if (role == Qt::DisplayRole) return grille_.Colonne(colonne).Titre;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Alignement(grille_.Colonne(colonne).Genre));
  return {};
}

Qt::ItemFlags ModeleGrille::flags(const QModelIndex& index) const {
  Qt::ItemFlags drapeaux = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (grille_.CasesACocher && index.column() == 0 && ACase(Ligne(index))) drapeaux |= Qt::ItemIsUserCheckable;
  return drapeaux;
}

bool ModeleGrille::setData(const QModelIndex& index, const QVariant& valeur, int role) {
  const int ligne = Ligne(index);
  if (role != Qt::CheckStateRole || ligne < 0 || !ACase(ligne)) return false;
  const bool coche = valeur.toInt() == Qt::Checked;
  grille_.Cocher(ligne, coche);
  emit Cochee(ligne, coche);
  return true;
}

FiltreGrille::FiltreGrille(const TGrille& grille, ModeleGrille& modele, QObject* parent)
    : QSortFilterProxyModel(parent), grille_(grille), modele_(modele) {
  setSourceModel(&modele);
  setRecursiveFilteringEnabled(true);
  setAutoAcceptChildRows(true);
}

bool FiltreGrille::filterAcceptsRow(int rang, const QModelIndex& parent) const {
  return grille_.EstVue(modele_.Ligne(modele_.index(rang, 0, parent)));
}

bool FiltreGrille::lessThan(const QModelIndex& a, const QModelIndex& b) const {
  const int ligneA = modele_.Ligne(a), ligneB = modele_.Ligne(b);
  // Groups keep their place whatever the order.
  if (grille_.Ligne(ligneA).Tete || grille_.Ligne(ligneB).Tete)
    return sortOrder() == Qt::AscendingOrder ? ligneA < ligneB : ligneB < ligneA;
  return grille_.Comparer(ligneA, ligneB, a.column()) < 0;
}
