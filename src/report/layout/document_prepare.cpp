#include "report/layout/document_prepare.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Baselines this near are one line: two sizes of type in one row differ by less, two rows by more.
constexpr float kMemeLigne = 3.5F;
/// A gap wider than this share of an em is a blank.
constexpr float kBlanc = 0.1F;

float Em(const TTexteForme& forme) { return forme.Style.Taille * kPixelsParPoint; }

/// Texts of a page that stand on one line, and what they read together.
struct TLigneLue {
  struct TMorceau {
    const TElementTexte* Element;
    int Debut;  ///< in `Texte`
  };
  std::vector<TMorceau> Morceaux;
  QString Texte;

  void Ajouter(const TElementTexte& element) {
    const TTexteForme& forme = *element.Forme;
    if (!Morceaux.empty()) {
      const TElementTexte& avant = *Morceaux.back().Element;
      const bool ecart = element.X - avant.X - avant.Forme->Largeur > kBlanc * Em(forme);
      if (ecart && !Texte.back().isSpace() && !forme.Texte.front().isSpace()) Texte += u' ';
    }
    Morceaux.push_back({&element, static_cast<int>(Texte.size())});
    Texte += forme.Texte;
  }
};

std::vector<TLigneLue> Lignes(const TPagePreparee& page) {
  std::vector<const TElementTexte*> textes;
  for (const TElement& element : page.Elements) {
    const auto* texte = std::get_if<TElementTexte>(&element);
    if (texte != nullptr && !texte->Forme->Texte.isEmpty()) textes.push_back(texte);
  }
  std::ranges::stable_sort(textes, {}, &TElementTexte::Base);
  std::vector<TLigneLue> lignes;
  for (auto debut = textes.begin(); debut != textes.end();) {
    const float base = (*debut)->Base;
    const auto fin = std::find_if(debut, textes.end(),
                                  [base](const TElementTexte* t) { return t->Base > base + kMemeLigne; });
    std::stable_sort(debut, fin, [](const auto* a, const auto* b) { return a->X < b->X; });
    TLigneLue& ligne = lignes.emplace_back();
    for (; debut != fin; ++debut) ligne.Ajouter(**debut);
  }
  return lignes;
}

/// A text without case and accents; each unit knows the unit of the text that it comes from.
struct TTextePlie {
  QString Texte;
  std::vector<int> Sources;

  explicit TTextePlie(const QString& texte) {
    Texte.reserve(texte.size());
    for (qsizetype i = 0; i < texte.size(); ++i) {
      const QChar c = texte[i];
      if (c.unicode() < 0x80)
        Noter(c.toLower(), i);
      else
        for (const QChar partie : Plier(c)) Noter(partie, i);
    }
  }

 private:
  void Noter(QChar c, qsizetype source) {
    Texte += c;
    Sources.push_back(static_cast<int>(source));
  }
  static QString Plier(QChar c) {
    switch (c.toCaseFolded().unicode()) {
      case u'œ':
        return u"oe"_s;
      case u'æ':
        return u"ae"_s;
      case u'’':
        return u"'"_s;
      default:
        break;
    }
    QString plie = QString(c).normalized(QString::NormalizationForm_KD).toCaseFolded();
    plie.removeIf([](QChar partie) { return partie.isMark(); });
    return plie;
  }
};

/// x of a unit of the text, px from the start of the run; inside a ligature in proportion.
float Place(const TTexteForme& forme, int unite) {
  for (std::size_t i = 0; i < forme.Glyphes.size(); ++i) {
    const TGlyphe& glyphe = forme.Glyphes[i];
    if (unite < glyphe.Debut || unite >= glyphe.Debut + glyphe.Nombre) continue;
    std::size_t suivant = i + 1;
    while (suivant < forme.Glyphes.size() && forme.Glyphes[suivant].Nombre == 0) ++suivant;
    const float fin = suivant < forme.Glyphes.size() ? forme.Glyphes[suivant].X : forme.Largeur;
    return glyphe.X +
           (fin - glyphe.X) * static_cast<float>(unite - glyphe.Debut) / static_cast<float>(glyphe.Nombre);
  }
  return forme.Largeur;
}

/// The box around [debut, fin) of a line.
QRectF Boite(const TLigneLue& ligne, int debut, int fin) {
  QRectF boite;
  for (const TLigneLue::TMorceau& morceau : ligne.Morceaux) {
    const TElementTexte& element = *morceau.Element;
    const TTexteForme& forme = *element.Forme;
    const int de = std::max(0, debut - morceau.Debut);
    const int a = std::min(static_cast<int>(forme.Texte.size()), fin - morceau.Debut);
    if (de >= a) continue;
    const float gauche = Place(forme, de), droite = Place(forme, a);
    const float haut = forme.Police->Ascendante() * Em(forme), bas = forme.Police->Descendante() * Em(forme);
    boite |= QRectF(QPointF(static_cast<qreal>(element.X + gauche), static_cast<qreal>(element.Base - haut)),
                    QPointF(static_cast<qreal>(element.X + droite), static_cast<qreal>(element.Base + bas)));
  }
  return boite;
}

}  // namespace

std::vector<TTrouvaille> TDocumentPrepare::Chercher(const QString& texte, int premiere, int fin) const {
  std::vector<TTrouvaille> trouvailles;
  const QString cherche = TTextePlie(texte.trimmed()).Texte;
  if (cherche.isEmpty()) return trouvailles;
  if (fin < 0) fin = static_cast<int>(Pages.size());
  for (int page = premiere; page < fin; ++page)
    for (const TLigneLue& ligne : Lignes(Pages.at(static_cast<std::size_t>(page)))) {
      const TTextePlie plie(ligne.Texte);
      for (qsizetype ou = plie.Texte.indexOf(cherche); ou >= 0;
           ou = plie.Texte.indexOf(cherche, ou + cherche.size())) {
        const int debut = plie.Sources[static_cast<std::size_t>(ou)];
        const int apres = plie.Sources[static_cast<std::size_t>(ou + cherche.size() - 1)] + 1;
        trouvailles.push_back({page, Boite(ligne, debut, apres)});
      }
    }
  return trouvailles;
}

QString TDocumentPrepare::TexteDePage(int page) const {
  QStringList lignes;
  for (const TLigneLue& ligne : Lignes(Pages.at(static_cast<std::size_t>(page)))) lignes += ligne.Texte;
  return lignes.join(u'\n');
}
