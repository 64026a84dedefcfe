#include "forms/grille.h"

#include <algorithm>
#include <numeric>

#include "core/comparaisons.h"
#include "core/texte_separe.h"

using namespace Qt::StringLiterals;

TGrille::TLot::~TLot() {
  if (--grille_.lots_ > 0 || !grille_.change_) return;
  grille_.change_ = false;
  grille_.Annoncer();
}

void TGrille::Annoncer(int ligne) {
  if (lots_ > 0)
    change_ = true;
  else
    SurChangement({ligne});
}

void TGrille::DefinirColonnes(std::vector<TColonneGrille> colonnes) {
  TLot lot(*this);
  colonnes_ = std::move(colonnes);
  change_ = true;
  Vider();
}

void TGrille::ChangerLargeur(int colonne, int largeur) {
  colonnes_.at(static_cast<size_t>(colonne)).Largeur = largeur;
}

int TGrille::Ajouter(TCellules cellules, TObjetVu objet, int etat) {
  lignes_.push_back({std::move(cellules), objet, etat});
  Annoncer();
  return NombreLignes() - 1;
}

int TGrille::AjouterTete(TCellules cellules, TObjetVu objet) {
  lignes_.push_back({.Cellules = std::move(cellules), .Objet = objet, .Tete = true});
  Annoncer();
  return NombreLignes() - 1;
}

void TGrille::Fermer(int tete, bool ferme) {
  if (ferme)
    fermes_.insert(Nom(tete));
  else
    fermes_.remove(Nom(tete));
}

void TGrille::Retirer(int ligne) {
  Ligne(ligne);
  lignes_.erase(lignes_.begin() + ligne);
  const bool choisie = ligne == courante_;
  if (ligne < courante_) --courante_;
  courante_ = std::min(courante_, NombreLignes() - 1);
  Annoncer();
  if (choisie) SurChoix();
}

void TGrille::Vider() {
  const bool choisie = courante_ >= 0;
  lignes_.clear();
  courante_ = -1;
  Annoncer();
  if (choisie) SurChoix();
}

void TGrille::Ecrire(int ligne, int colonne, TValeurVue valeur) {
  TCellules& cellules = Modifiable(ligne).Cellules;
  const auto place = static_cast<size_t>(colonne);
  if (cellules.size() <= place) cellules.resize(place + 1);
  cellules[place] = std::move(valeur);
  Annoncer(ligne);
}

void TGrille::EcrireLigne(int ligne, TCellules cellules) {
  Modifiable(ligne).Cellules = std::move(cellules);
  Annoncer(ligne);
}

void TGrille::ChangerObjet(int ligne, TObjetVu objet) {
  Modifiable(ligne).Objet = objet;
  Annoncer(ligne);
}

void TGrille::ChangerEtat(int ligne, int etat) {
  Modifiable(ligne).Etat = etat;
  Annoncer(ligne);
}

void TGrille::Barrer(int ligne) {
  Modifiable(ligne).Barree = true;
  Annoncer(ligne);
}

void TGrille::Cocher(int ligne, bool coche) {
  Modifiable(ligne).Coche = coche;
  Annoncer(ligne);
}

void TGrille::OterCase(int ligne) {
  Modifiable(ligne).SansCase = true;
  Annoncer(ligne);
}

void TGrille::CocherTout(bool coche) {
  for (TLigneGrille& ligne : lignes_) ligne.Coche = coche;
  Annoncer();
}

void TGrille::Trier(int colonne, bool croissant) {
  const auto avant = [&](size_t a, size_t b) {
    const int sens = ComparerLignes(lignes_[a], lignes_[b], colonne);
    return croissant ? sens < 0 : sens > 0;
  };
  std::vector<size_t> rangs(lignes_.size());
  std::iota(rangs.begin(), rangs.end(), size_t{0});
  for (auto debut = rangs.begin(); debut != rangs.end();) {
    auto fin = std::find_if(debut, rangs.end(), [&](size_t rang) { return lignes_[rang].Tete; });
    std::stable_sort(debut, fin, avant);
    debut = fin == rangs.end() ? fin : fin + 1;
  }
  std::vector<TLigneGrille> triees;
  triees.reserve(rangs.size());
  int courante = -1;
  for (const size_t rang : rangs) {
    if (static_cast<int>(rang) == courante_) courante = static_cast<int>(triees.size());
    triees.push_back(std::move(lignes_[rang]));
  }
  lignes_ = std::move(triees);
  courante_ = courante;
  Annoncer();
}

int TGrille::ComparerLignes(const TLigneGrille& a, const TLigneGrille& b, int colonne) const {
  const TGenre genre = Colonne(colonne).Genre;
  if (genre != TGenre::Etat) return ComparerValeurs(genre, a.Valeur(colonne), b.Valeur(colonne));
  return ComparerTextes(Etats.at(static_cast<size_t>(a.Etat)).Texte,
                        Etats.at(static_cast<size_t>(b.Etat)).Texte);
}

int TGrille::Comparer(int a, int b, int colonne) const { return ComparerLignes(Ligne(a), Ligne(b), colonne); }

int TGrille::ColonneEtat() const {
  const auto colonne = std::ranges::find(colonnes_, TGenre::Etat, &TColonneGrille::Genre);
  return colonne == colonnes_.end() ? -1 : static_cast<int>(colonne - colonnes_.begin());
}

TValeurVue TLigneGrille::Valeur(int colonne) const {
  const auto place = static_cast<size_t>(colonne);
  return place < Cellules.size() ? Cellules[place] : TValeurVue();
}

QString TGrille::Texte(int ligne, int colonne) const {
  const TLigneGrille& vue = Ligne(ligne);
  const TGenre genre = Colonne(colonne).Genre;
  if (genre == TGenre::Etat && !vue.Tete) return Etats.at(static_cast<size_t>(vue.Etat)).Texte;
  return TexteDe(genre, vue.Valeur(colonne));
}

QStringList TGrille::Textes(int ligne) const {
  QStringList textes;
  for (int colonne = 0; colonne < NombreColonnes(); ++colonne) textes += Texte(ligne, colonne);
  return textes;
}

bool TGrille::Contient(int ligne, const QString& cherche) const {
  return ContientMots(Textes(ligne).join(u'\n'), cherche);
}

int TGrille::TrouverObjet(TObjetVu objet) const {
  const auto trouve = std::ranges::find(lignes_, objet, &TLigneGrille::Objet);
  return objet && trouve != lignes_.end() ? static_cast<int>(trouve - lignes_.begin()) : -1;
}

int TGrille::Voisine(int ligne) const {
  std::vector<int> vues(lignes_.size());
  std::iota(vues.begin(), vues.end(), 0);
  SurOrdre(vues);
  const auto ici = std::ranges::find(vues, ligne);
  if (ici == vues.end()) return -1;
  return ici + 1 != vues.end() ? ici[1] : ici != vues.begin() ? ici[-1] : -1;
}

void TGrille::ChoisirLigne(int ligne) {
  const int choisie = ligne >= 0 && ligne < NombreLignes() ? ligne : -1;
  if (choisie == courante_) return;
  courante_ = choisie;
  SurChoix();
}

QString EnCsv(const TGrille& grille, const std::vector<int>& lignes, const std::vector<int>& colonnes) {
  QStringList rangees;
  const auto ajouter = [&](auto&& cellule) {
    QStringList cellules;
    for (const int colonne : colonnes) cellules += ChampSepare(cellule(colonne));
    rangees += cellules.join(u';');
  };
  ajouter([&](int colonne) { return grille.Colonne(colonne).Titre; });
  for (const int ligne : lignes)
    ajouter([&](int colonne) {
      const TGenre genre = grille.Colonne(colonne).Genre;
      return genre == TGenre::Etat ? grille.Texte(ligne, colonne)
                                   : TexteBrut(genre, grille.Ligne(ligne).Valeur(colonne));
    });
  return rangees.join(u"\r\n"_s) % u"\r\n";
}
