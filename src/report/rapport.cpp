#include "report/rapport.h"

#include "core/exceptions.h"
#include "forms/grille.h"
#include "report/json.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kNomsDuMoteur[] = {u"DATE",    u"TIME",     u"LINE#", u"LINETHROUGH#",
                                         u"COLUMN#", u"CURRENT#", u"PAGE#", u"TOTALPAGES"};

/// Most names are told apart by their length.
bool MemeNom(QStringView a, QStringView b) {
  return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Names that the engine or the script of the template takes.
bool EstDuMoteur(QStringView nom) {
  if (nom.startsWith(u"My", Qt::CaseInsensitive)) return true;
  return std::ranges::any_of(kNomsDuMoteur, [nom](QStringView sien) { return MemeNom(nom, sien); });
}

QString NomColonne(int colonne) { return u"COL"_s % QString::number(colonne); }

void EcrireValeurs(QByteArray& json, const TValeurs& valeurs) {
  json += '{';
  QByteArray separateur;
  for (const auto& [nom, valeur] : valeurs) {
    json += separateur + TexteJson(nom) + ':' + TexteJson(valeur);
    separateur = ",";
  }
  json += '}';
}

void EcrireNoeuds(QByteArray& json, const TArbreRapport& noeuds) {
  json += '[';
  QByteArray separateur;
  for (const TNoeudRapport& noeud : noeuds) {
    json += separateur + "{\"texte\":" + TexteJson(noeud.Texte) + ",\"valeurs\":";
    EcrireValeurs(json, noeud.Valeurs);
    json += ",\"enfants\":";
    EcrireNoeuds(json, noeud.Enfants);
    json += '}';
    separateur = ",";
  }
  json += ']';
}

}  // namespace

TRapport::TRapport(const QString& titre, const QString& modele) : titre_(titre), modele_(modele) {
  AjouterVariable(u"NomRapport", titre);
}

void TRapport::CopierArbre(TArbreRapport arbre) {
  arbre_ = std::move(arbre);
  plat_.clear();
  for (const TNoeudRapport& noeud : arbre_) Indexer(noeud, 0, -1);
}

void TRapport::Indexer(const TNoeudRapport& noeud, int niveau, int parent) {
  const int place = static_cast<int>(plat_.size());
  plat_.push_back({&noeud, niveau, parent});
  if (niveau == 2) return;
  for (const TNoeudRapport& enfant : noeud.Enfants) Indexer(enfant, niveau + 1, place);
}

template <class TCellule>
void TRapport::ChargerColonnes(const TGrille& grille, TCellule cellule) {
  const int colonnes = grille.NombreColonnes();
  if (colonnes > kColonnesMax)
    throw Exception(u"Une liste de plus de %1 colonnes ne peut pas être imprimée."_s.arg(kColonnesMax));
  modeColonnes_ = true;
  nombreColonnes_ = colonnes;
  largeursColonnes_.fill(0);
  titresColonnes_.fill(QString());
  for (int colonne = 0; colonne < colonnes; ++colonne) {
    largeursColonnes_[static_cast<std::size_t>(colonne)] = grille.Colonne(colonne).Largeur;
    titresColonnes_[static_cast<std::size_t>(colonne)] = grille.Colonne(colonne).Titre;
  }
  largeurColRef_ = largeursColonnes_[0];

  TArbreRapport lignes;
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne) {
    if (!grille.EstVue(ligne)) continue;
    TNoeudRapport& noeud = lignes.emplace_back(grille.Texte(ligne, 0));
    for (int colonne = 0; colonne < colonnes; ++colonne)
      noeud.Valeurs.Ecrire(NomColonne(colonne), cellule(grille.Texte(ligne, colonne)));
  }
  CopierArbre(std::move(lignes));
}

void TRapport::ChargerColonnesListe(const TGrille& liste) {
  ChargerColonnes(liste, [](const QString& texte) { return texte; });
}

void TRapport::ChargerColonnesGrille(const TGrille& grille, int colonneCachee) {
  ChargerColonnes(grille, [](const QString& texte) { return texte.isEmpty() ? u" "_s : texte; });
  if (colonneCachee <= 0) return;
  --nombreColonnes_;
  largeursColonnes_.at(static_cast<std::size_t>(colonneCachee)) = 0;
  titresColonnes_.at(static_cast<std::size_t>(colonneCachee)).clear();
}

std::optional<QString> TRapport::Valeur(QStringView nom, TPosition position) const {
  if (EstDuMoteur(nom)) return std::nullopt;
  if (const QString* variable = variables_.Trouver(nom)) return *variable;
  return modeColonnes_ ? ValeurColonne(nom, position) : ValeurArbre(nom, position.Curseur);
}

QString TRapport::ValeurColonne(QStringView nom, TPosition position) const {
  const auto colonne = static_cast<std::size_t>(position.Colonne) + 1;
  const auto cellule = [&](int indice) {
    const auto ligne = static_cast<std::size_t>(position.Curseur);
    return ligne < plat_.size() ? plat_[ligne].Noeud->Valeurs.Valeur(NomColonne(indice)) : QString();
  };
  if (MemeNom(nom, u"COLREF")) return cellule(0);
  if (MemeNom(nom, u"COLREFWIDTH")) return QString::number(largeurColRef_);
  if (MemeNom(nom, u"COLREFTITLE")) return titresColonnes_[0];
  if (colonne >= titresColonnes_.size()) return {};
  if (MemeNom(nom, u"COL")) return cellule(static_cast<int>(colonne));
  if (MemeNom(nom, u"COLWIDTH")) return QString::number(largeursColonnes_[colonne]);
  if (MemeNom(nom, u"COLTITLE")) return titresColonnes_[colonne];
  return {};
}

QString TRapport::ValeurArbre(QStringView nom, int curseur) const {
  const auto indice = static_cast<std::size_t>(curseur);
  if (indice >= plat_.size()) return {};
  const auto premierEnfant = [](const TNoeudRapport* noeud) {
    return noeud && !noeud->Enfants.empty() ? &noeud->Enfants.front() : nullptr;
  };
  const auto parent = [this](const TPlace& place) { return plat_[static_cast<std::size_t>(place.Parent)]; };

  const TPlace& place = plat_[indice];
  std::array<const TNoeudRapport*, 3> noeuds{place.Noeud};
  if (place.Niveau == 0) {
    noeuds[1] = premierEnfant(place.Noeud);
    noeuds[2] = premierEnfant(noeuds[1]);
  } else if (place.Niveau == 1) {
    noeuds[1] = parent(place).Noeud;
    noeuds[2] = premierEnfant(place.Noeud);
  } else {
    noeuds[1] = parent(place).Noeud;
    noeuds[2] = parent(parent(place)).Noeud;
  }
  for (const auto liste : {&TNoeudRapport::Valeurs, &TNoeudRapport::Annexes})
    for (const TNoeudRapport* noeud : noeuds) {
      const QString* valeur = noeud ? (noeud->*liste).Trouver(nom) : nullptr;
      if (valeur && !valeur->isEmpty()) return *valeur;
    }
  return {};
}

std::optional<QImage> TRapport::Image(QStringView objet, TPosition position) const {
  if (MemeNom(objet, u"MyLogo") && !Logo.isNull()) return Logo;
  if (MemeNom(objet, u"MyPhoto") && ChargeurPhoto) {
    QImage photo;
    ChargeurPhoto(Valeur(u"PhotoID", position).value_or(QString()), photo);
    return photo;
  }
  return std::nullopt;
}

QByteArray TRapport::EnJson() const {
  QByteArray json = "{\"modele\":" + TexteJson(modele_) + ",\"variables\":";
  EcrireValeurs(json, variables_);
  json += ",\"arbre\":";
  EcrireNoeuds(json, arbre_);
  return json + '}';
}
