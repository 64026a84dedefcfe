#include "ui/principal/modele_arbre.h"

#include "core/accord.h"
#include "forms/arbre.h"
#include "pupils/eleves.h"

namespace {

/// Its class counts its own; a site counts pupils only.
bool EstPersonnel(const TNoeud& noeud) {
  const auto* classe = noeud.Objet.En<TClasse>();
  return classe != nullptr && CategorieDeClasse(classe->CodeClasse) == TCategorie::Personnel;
}

}  // namespace

ModeleArbre::ModeleArbre(const TArbre& arbre, QObject* parent) : QAbstractItemModel(parent), arbre_(arbre) {
  Relire();
}

void ModeleArbre::Relire() {
  beginResetModel();
  places_.clear();
  int rang = 0;
  for (const auto& racine : arbre_.Racines()) Noter(*racine, rang++);
  endResetModel();
}

void ModeleArbre::Noter(TNoeud& noeud, int rang) {
  int feuilles = 0, suivant = 0;
  for (const auto& enfant : noeud.Enfants()) {
    Noter(*enfant, suivant++);
    if (!EstPersonnel(*enfant)) feuilles += enfant->Enfants().empty() ? 1 : places_[enfant.get()].Feuilles;
  }
  places_[&noeud] = {rang, feuilles};
}

TNoeud* ModeleArbre::Noeud(const QModelIndex& index) const {
  return index.isValid() ? static_cast<TNoeud*>(index.internalPointer()) : nullptr;
}

QModelIndex ModeleArbre::Index(const TNoeud* noeud) const {
  const auto place = places_.constFind(noeud);
  return place == places_.constEnd() ? QModelIndex()
                                     : createIndex(place->Rang, 0, const_cast<TNoeud*>(noeud));
}

QString ModeleArbre::Chemin(const TNoeud& noeud) {
  const QString avant = noeud.Parent() != nullptr ? Chemin(*noeud.Parent()) : QString();
  return avant % u'\n' % noeud.Texte;
}

QModelIndex ModeleArbre::index(int ligne, int colonne, const QModelIndex& parent) const {
  const TNoeud* noeud = Noeud(parent);
  const auto& enfants = noeud != nullptr ? noeud->Enfants() : arbre_.Racines();
  const auto rang = static_cast<std::size_t>(ligne);
  if (ligne < 0 || colonne != 0 || rang >= enfants.size()) return {};
  return createIndex(ligne, 0, enfants[rang].get());
}

QModelIndex ModeleArbre::parent(const QModelIndex& index) const {
  const TNoeud* noeud = Noeud(index);
  return noeud != nullptr ? Index(noeud->Parent()) : QModelIndex();
}

int ModeleArbre::rowCount(const QModelIndex& parent) const {
  const TNoeud* noeud = Noeud(parent);
  return static_cast<int>((noeud != nullptr ? noeud->Enfants() : arbre_.Racines()).size());
}

int ModeleArbre::columnCount(const QModelIndex&) const { return 1; }

QVariant ModeleArbre::data(const QModelIndex& index, int role) const {
  const TNoeud* noeud = Noeud(index);
  if (noeud == nullptr) return {};
  const int feuilles = places_.value(noeud).Feuilles;
  const bool barre = noeud->Marque == TMarqueNoeud::Barree;
  switch (role) {
    case Qt::DisplayRole:
      return noeud->Texte;
    case Qt::AccessibleTextRole:
      if (barre) return QString(noeud->Texte % u", radié");
      return feuilles > 0 ? QString(noeud->Texte % u", " % CompterEleves(feuilles)) : noeud->Texte;
    case kCompte:
      return noeud->Enfants().empty() ? QVariant() : QVariant(feuilles);
    case kMarque:
      return static_cast<int>(noeud->Marque);
    case kNiveau:
      return noeud->Niveau();
    default:
      return {};
  }
}
