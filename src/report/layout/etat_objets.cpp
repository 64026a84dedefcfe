#include "report/layout/etat_objets.h"

#include <QColor>

namespace {

bool Meme(const QString& a, const char* b) { return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0; }

/// A length of an object, by the name that scripts use; null for another property.
float* Longueur(TEtatObjet& etat, const QString& propriete) {
  if (Meme(propriete, "Top")) return &etat.Y;
  if (Meme(propriete, "Width")) return &etat.Largeur;
  if (Meme(propriete, "Height")) return &etat.Hauteur;
  return nullptr;
}

/// A number, or a text that is one.
std::optional<float> Nombre(const TValeurScript& valeur) {
  if (const double* nombre = std::get_if<double>(&valeur)) return static_cast<float>(*nombre);
  if (const QString* texte = std::get_if<QString>(&valeur)) {
    bool ok = false;
    const float nombre = texte->toFloat(&ok);
    if (ok) return nombre;
  }
  return {};
}

/// "#rrggbb", or a number with red in its lowest byte.
std::optional<QRgb> Couleur(const TValeurScript& valeur) {
  if (const QString* texte = std::get_if<QString>(&valeur)) {
    const QColor couleur(*texte);
    return couleur.isValid() ? std::optional(couleur.rgb()) : std::nullopt;
  }
  const double* nombre = std::get_if<double>(&valeur);
  if (nombre == nullptr || *nombre < 0 || *nombre > 0xFFFFFF) return {};
  const int bgr = static_cast<int>(*nombre);
  return qRgb(bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16 & 0xFF);
}

}  // namespace

TEtatObjets::TEtatObjets(const TModele& modele, TResolveur valeur) : valeur_(std::move(valeur)) {
  for (const TPageModele& page : modele.Pages)
    for (const TBandeModele& bande : page.Bandes) {
      TEtatObjet& etat = etats_[&bande];
      etat.Visible = bande.Visible;
      etat.Hauteur = bande.Hauteur;
      etat.Largeur = page.Largeur - 2 * page.Marge;
      Nommer(bande.Nom, etat);
      for (const TObjetModele& objet : bande.Objets) {
        TEtatObjet& sien = etats_[&objet];
        sien = {objet.Visible, objet.Y, objet.Largeur, objet.Hauteur, objet.Fond, {}, objet.TypeCode};
        Nommer(objet.Nom, sien);
      }
    }
}

void TEtatObjets::Nommer(const QString& nom, TEtatObjet& etat) {
  if (!nom.isEmpty()) noms_.insert(nom.toLower(), &etat);
}

bool TEtatObjets::Poser(const QString& objet, const QString& propriete, const TValeurScript& valeur) {
  TEtatObjet* etat = noms_.value(objet.toLower());
  if (etat == nullptr) return false;
  if (Meme(propriete, "Visible")) {
    const bool* visible = std::get_if<bool>(&valeur);
    if (visible != nullptr) etat->Visible = *visible;
    return visible != nullptr;
  }
  if (Meme(propriete, "Color")) {
    const auto couleur = Couleur(valeur);
    if (couleur) etat->Fond = *couleur;
    return couleur.has_value();
  }
  if (Meme(propriete, "Text")) {
    const QString* texte = std::get_if<QString>(&valeur);
    if (texte != nullptr) etat->Texte = *texte;
    return texte != nullptr;
  }
  if (Meme(propriete, "BarType")) {
    const QString* type = std::get_if<QString>(&valeur);
    if (type == nullptr || !(Meme(*type, "Codabar") || Meme(*type, "Code39"))) return false;
    etat->TypeCode = Meme(*type, "Codabar") ? TTypeCode::Codabar : TTypeCode::Code39;
    return true;
  }
  float* longueur = Longueur(*etat, propriete);
  const auto nombre = Nombre(valeur);
  if (longueur == nullptr || !nombre) return false;
  *longueur = *nombre;
  return true;
}

std::optional<TValeurScript> TEtatObjets::Lire(const QString& objet, const QString& propriete) {
  TEtatObjet* etat = noms_.value(objet.toLower());
  if (etat == nullptr) return {};
  if (Meme(propriete, "Visible")) return etat->Visible;
  if (const float* longueur = Longueur(*etat, propriete)) return static_cast<double>(*longueur);
  return {};
}
