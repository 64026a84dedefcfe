#pragma once
#include "report/layout/document_prepare.h"
#include "report/output/pdf_polices.h"

/// Pictures, gradients and fonts of the file, each written once.
class TRessourcesPdf {
 public:
  explicit TRessourcesPdf(TEcrivainPdf& ecrivain) : ecrivain_(ecrivain) {}

  TPolicesPdf Polices;
  /// Its number: "/I2".
  int Image(const QImage& image);
  /// From the top to the bottom of a unit square: "/D2".
  int Degrade(QRgb haut, QRgb bas);
  /// Writes the fonts; gives the dictionary.
  std::string Ecrire();

 private:
  TEcrivainPdf& ecrivain_;
  std::unordered_map<qint64, int> images_;
  std::map<std::pair<QRgb, QRgb>, int> degrades_;
  std::string entreesImages_, entreesDegrades_;
};

/// Page sizes are whole millimetres, given in px.
TCentiemes CotePapier(float pixels);

/// Draws one page.
class TPagePdf {
 public:
  TPagePdf(const TPagePreparee& page, TRessourcesPdf& ressources);
  /// The drawing operators.
  std::string Dessiner();

 private:
  void Dessiner(const TElementTexte& element);
  void Dessiner(const TElementTrait& element);
  void Dessiner(const TElementCadre& element);
  void Dessiner(const TElementImage& element);
  void Dessiner(const TElementBarres& element);

  void Operateur(std::string_view nom);
  void Couleur(QRgb couleur, bool trait);
  void Plume(float epaisseur, float tiret, QRgb couleur);
  void Rectangle(const QRectF& place);
  void Glyphes(const TTexteForme& forme, TPolicePdf& police);
  void EntrerDansTexte();
  void SortirDuTexte();
  TCentiemes Y(double pixels) const { return hauteur_ - Centiemes(pixels); }

  const TPagePreparee& page_;
  TRessourcesPdf& ressources_;
  const TCentiemes hauteur_;
  std::string sortie_;

  // What the page's state is, so that only changes are written.
  bool dansTexte_ = false;
  TCentiemes xTexte_ = 0, yTexte_ = 0;
  const TPolice* police_ = nullptr;
  float taille_ = 0.0F;
  TPolicePdf* policePdf_ = nullptr;
  QRgb fond_ = 0xFF000000, trait_ = 0xFF000000;
  float epaisseur_ = -1.0F, tiret_ = 0.0F;
};
