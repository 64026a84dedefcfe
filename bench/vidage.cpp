#include "bench/vidage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

#include "core/exceptions.h"
#include "report/layout/fichiers_polices.h"
#include "report/output/pdf_pages.h"

using namespace Qt::StringLiterals;

namespace {

/// Hundredths of a point, as in our own file.
double Points(double pixels) { return std::round(pixels / static_cast<double>(kPixelsParPoint) * 100) / 100; }

QJsonValue Couleur(QRgb couleur, bool aucune = false) {
  if (aucune) return {};
  return QJsonArray{qRed(couleur) / 255.0, qGreen(couleur) / 255.0, qBlue(couleur) / 255.0};
}

class TVidage {
 public:
  QByteArray Tout(const TDocumentPrepare& document) {
    for (const TPagePreparee& page : document.Pages) {
      hauteur_ = CotePapier(page.Hauteur) / kCentiemesParPixel;
      elements_ = {};
      for (const TElement& element : page.Elements)
        std::visit([this](const auto& e) { Ajouter(e); }, element);
      pages_.append(
          QJsonArray{CotePapier(page.Largeur) / 100.0, CotePapier(page.Hauteur) / 100.0, elements_});
    }
    return QJsonDocument(QJsonObject{{u"polices"_s, polices_}, {u"pages"_s, pages_}})
        .toJson(QJsonDocument::Compact);
  }

 private:
  double X(float x) const { return Points(static_cast<double>(x)); }
  double Y(double y) const { return Points(hauteur_ - y); }

  QString Police(const TTexteForme& forme) {
    const QString& nom = forme.Police->Nom();
    if (!polices_.contains(nom)) {
      const QString famille = forme.Style.Famille == TFamille::Carlito ? u"Carlito"_s : u"Liberation Mono"_s;
      polices_.insert(nom, chercher_({famille, forme.Style.Gras, forme.Style.Italique}));
    }
    if (polices_[nom].toString().isEmpty() || forme.Police != &TPolices::Communes().Trouver(forme.Style))
      throw Exception(u"La police %1 n'est pas celle que le texte demande."_s.arg(nom));
    return nom;
  }

  void Ajouter(const TElementTexte& e) {
    if (e.Souligne) throw Exception(u"Un texte souligné n'est pas prévu."_s);
    elements_.append(QJsonArray{u"t"_s, X(e.X), Y(static_cast<double>(e.Base)), Police(*e.Forme),
                                static_cast<double>(e.Forme->Style.Taille), Couleur(e.Couleur),
                                e.Forme->Texte});
  }
  void Ajouter(const TElementTrait& e) {
    elements_.append(QJsonArray{u"l"_s, X(e.X1), Y(static_cast<double>(e.Y1)), X(e.X2),
                                Y(static_cast<double>(e.Y2)), X(e.Epaisseur), Couleur(e.Couleur),
                                X(e.Tiret)});
  }
  void Ajouter(const TElementCadre& e) {
    if (qAlpha(e.FondBas) != 0) throw Exception(u"Un dégradé n'est pas prévu."_s);
    elements_.append(QJsonArray{u"r"_s, Points(e.Place.left()), Y(e.Place.bottom()), Points(e.Place.width()),
                                Points(e.Place.height()), X(e.Epaisseur), Couleur(e.Trait),
                                Couleur(e.Fond, qAlpha(e.Fond) == 0)});
  }
  void Ajouter(const TElementImage&) { throw Exception(u"Une image n'est pas prévue."_s); }
  void Ajouter(const TElementBarres& e) {
    for (const QRectF& barre : e.Barres) Ajouter(TElementCadre{barre, 0, 0xFF000000, 0xFF000000, 0});
  }

  const TFichiersPolices chercher_;
  double hauteur_ = 0;  ///< of the page in hand, px
  QJsonObject polices_;
  QJsonArray pages_, elements_;
};

}  // namespace

QByteArray Vider(const TDocumentPrepare& document) { return TVidage().Tout(document); }
