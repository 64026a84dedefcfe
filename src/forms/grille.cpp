#include "forms/grille.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "core/comparaisons.h"
#include "core/formats.h"
#include "core/lecture_dates.h"

using namespace Qt::StringLiterals;

namespace {

/// The number in a text such as "-1 234,50 €"; the lowest of all when there is none.
double Nombre(const QString& texte) {
  QString chiffres;
  for (QChar c : texte) {
    if (c.isDigit()) chiffres += c;
    if ((c == u'-' || c == u'\u2212') && chiffres.isEmpty()) chiffres += u'-';
    if (c == u',') chiffres += u'.';
  }
  bool lu = false;
  const double valeur = chiffres.toDouble(&lu);
  return lu ? valeur : std::numeric_limits<double>::lowest();
}

int ComparerNombres(double a, double b) { return a < b ? -1 : a > b ? 1 : 0; }

/// The place of "jeudi 22 novembre" in a school year; -1 when it is no day.
int RangJour(const QString& texte) {
  static const QStringList kMois = [] {
    QStringList noms;
    for (int rang = 0; rang < 12; ++rang) noms += LocaleEcole().monthName((rang + 8) % 12 + 1);
    return noms;
  }();
  const auto mois = kMois.indexOf(texte.section(u' ', -1));
  return mois < 0 ? -1 : static_cast<int>(mois) * 31 + texte.section(u' ', -2, -2).toInt();
}

int ComparerCellules(TOrdre ordre, const QString& a, const QString& b) {
  switch (ordre) {
    case TOrdre::Nombre:
      return ComparerNombres(Nombre(a), Nombre(b));
    case TOrdre::Date:
      return ComparerNombres(LireDateBarre(a), LireDateBarre(b));
    case TOrdre::Jour:
      return RangJour(a) - RangJour(b);
    case TOrdre::Texte:
      break;
  }
  return ComparerTextes(a, b);
}

/// Lower case, and accents as characters of their own that are left out.
QString Simplifier(const QString& texte) {
  QString simple = texte.normalized(QString::NormalizationForm_KD).toLower();
  simple.removeIf([](QChar c) { return c.isMark(); });
  return simple;
}

}  // namespace

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

int TGrille::Ajouter(QStringList textes, TObjetVu objet, int etat) {
  lignes_.push_back({std::move(textes), objet, etat});
  Annoncer();
  return NombreLignes() - 1;
}

int TGrille::AjouterTete(QStringList textes, TObjetVu objet) {
  lignes_.push_back({.Textes = std::move(textes), .Objet = objet, .Tete = true});
  Annoncer();
  return NombreLignes() - 1;
}

int TGrille::TeteDe(int ligne) const {
  if (Ligne(ligne).Tete) return -1;
  while (--ligne >= 0 && !Ligne(ligne).Tete) continue;
  return ligne;
}

void TGrille::Fermer(int tete, bool ferme) {
  if (ferme)
    fermes_.insert(Texte(tete, 0));
  else
    fermes_.remove(Texte(tete, 0));
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

void TGrille::Ecrire(int ligne, int colonne, const QString& texte) {
  QStringList& textes = Modifiable(ligne).Textes;
  while (textes.size() <= colonne) textes.append(QString());
  textes[colonne] = texte;
  Annoncer(ligne);
}

void TGrille::EcrireLigne(int ligne, QStringList textes) {
  Modifiable(ligne).Textes = std::move(textes);
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

void TGrille::Cocher(int ligne, bool coche) {
  Modifiable(ligne).Coche = coche;
  Annoncer(ligne);
}

void TGrille::CocherTout(bool coche) {
  for (TLigneGrille& ligne : lignes_) ligne.Coche = coche;
  Annoncer();
}

void TGrille::Trier(int colonne, bool croissant) {
  const TOrdre ordre = Colonne(colonne).Ordre;
  Trier([=](const TLigneGrille& a, const TLigneGrille& b) {
    const int sens = ComparerCellules(ordre, a.Texte(colonne), b.Texte(colonne));
    return croissant ? sens : -sens;
  });
}

void TGrille::Trier(const std::function<int(const TLigneGrille&, const TLigneGrille&)>& comparer) {
  std::vector<size_t> rangs(lignes_.size());
  std::iota(rangs.begin(), rangs.end(), size_t{0});
  for (auto debut = rangs.begin(); debut != rangs.end();) {
    auto fin = std::find_if(debut, rangs.end(), [&](size_t rang) { return lignes_[rang].Tete; });
    std::stable_sort(debut, fin, [&](size_t a, size_t b) { return comparer(lignes_[a], lignes_[b]) < 0; });
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

int TGrille::Comparer(int a, int b, int colonne) const {
  return ComparerCellules(Colonne(colonne).Ordre, TexteVu(a, colonne), TexteVu(b, colonne));
}

int TGrille::ColonneEtat() const {
  if (Etats.empty()) return -1;
  const auto colonne = std::ranges::find(colonnes_, u"État"_s, &TColonneGrille::Titre);
  return colonne == colonnes_.end() ? -1 : static_cast<int>(colonne - colonnes_.begin());
}

QString TGrille::TexteVu(int ligne, int colonne) const {
  const TLigneGrille& vue = Ligne(ligne);
  return colonne == ColonneEtat() && !vue.Tete ? Etats.at(static_cast<size_t>(vue.Etat)).Texte
                                               : vue.Texte(colonne);
}

bool TGrille::Contient(int ligne, const QString& cherche) const {
  QStringList vus = Ligne(ligne).Textes;
  if (const int colonne = ColonneEtat(); colonne >= 0) vus += TexteVu(ligne, colonne);
  const QString textes = Simplifier(vus.join(u'\n'));
  const QStringList mots = Simplifier(cherche).split(u' ', Qt::SkipEmptyParts);
  return std::ranges::all_of(mots, [&](const QString& mot) { return textes.contains(mot); });
}

int TGrille::TrouverObjet(TObjetVu objet) const {
  const auto trouve = std::ranges::find(lignes_, objet, &TLigneGrille::Objet);
  return objet && trouve != lignes_.end() ? static_cast<int>(trouve - lignes_.begin()) : -1;
}

void TGrille::ChoisirLigne(int ligne) {
  const int choisie = ligne >= 0 && ligne < NombreLignes() ? ligne : -1;
  if (choisie == courante_) return;
  courante_ = choisie;
  SurChoix();
}

int ComparerColonne0(const TLigneGrille& a, const TLigneGrille& b) {
  return ComparerTextes(a.Texte(0), b.Texte(0));
}

int ComparerColonne1(const TLigneGrille& a, const TLigneGrille& b) {
  return ComparerTextes(a.Texte(1), b.Texte(1));
}
