#include "report/layout/etat_objets.h"

#include <QColor>

namespace {

constexpr float kLongueurMaximum = 20'000;

bool Meme(const QString& a, const char* b) { return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0; }

/// A length in px, or a text that is one; none outside of what templates take.
std::optional<float> Longueur(const TValeurScript& valeur, float minimum) {
  const QString* texte = std::get_if<QString>(&valeur);
  const double* nombre = std::get_if<double>(&valeur);
  bool ok = nombre != nullptr;
  const float longueur = texte != nullptr ? texte->toFloat(&ok) : ok ? static_cast<float>(*nombre) : 0;
  return ok && longueur >= minimum && longueur <= kLongueurMaximum ? std::optional(longueur) : std::nullopt;
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

std::optional<TTypeCode> TypeCode(const TValeurScript& valeur) {
  const QString* type = std::get_if<QString>(&valeur);
  if (type != nullptr && Meme(*type, "Codabar")) return TTypeCode::Codabar;
  if (type != nullptr && Meme(*type, "Code39")) return TTypeCode::Code39;
  return {};
}

/// Sets a field unless there is nothing to set it to.
template <class TSource, class T>
bool Prendre(const TSource& source, T& champ) {
  if (source) champ = *source;
  return static_cast<bool>(source);
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
        sien = {objet.Sorte,   objet.Visible, objet.Y, objet.Largeur,
                objet.Hauteur, objet.Fond,    {},      objet.TypeCode};
        Nommer(objet.Nom, sien);
      }
    }
}

void TEtatObjets::Nommer(const QString& nom, TEtatObjet& etat) {
  if (!nom.isEmpty()) noms_.insert(nom.toLower(), &etat);
}

bool TEtatObjets::Poser(const QString& objet, TPropriete propriete, const TValeurScript& valeur) {
  TEtatObjet* etat = noms_.value(objet.toLower());
  if (etat == nullptr || !APropriete(etat->Sorte, propriete)) return false;
  switch (propriete) {
    case TPropriete::Visible:
      return Prendre(std::get_if<bool>(&valeur), etat->Visible);
    case TPropriete::Top:
      return Prendre(Longueur(valeur, -kLongueurMaximum), etat->Y);
    case TPropriete::Width:
      return Prendre(Longueur(valeur, 0), etat->Largeur);
    case TPropriete::Height:
      return Prendre(Longueur(valeur, 0), etat->Hauteur);
    case TPropriete::Color:
      return Prendre(Couleur(valeur), etat->Fond);
    case TPropriete::Text:
      return Prendre(std::get_if<QString>(&valeur), etat->Texte);
    case TPropriete::BarType:
      return Prendre(TypeCode(valeur), etat->TypeCode);
  }
  return false;
}
