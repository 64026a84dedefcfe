#pragma once
#include <QHash>
#include <unordered_map>

#include "report/layout/texte_modele.h"
#include "report/template/modele.h"

/// What a script may change of a band or an object. The template itself is never touched.
struct TEtatObjet {
  std::optional<TSorteObjet> Sorte;  ///< none for a band
  bool Visible = true;
  float Y = 0, Largeur = 0, Hauteur = 0;
  QRgb Fond = 0;                 ///< alpha 0: none
  std::optional<QString> Texte;  ///< goes before the template's; data, so not looked at for names
  TTypeCode TypeCode = TTypeCode::Code39;
};

/// The bands and objects of one run as its script left them: what is set stays until it is set again.
class TEtatObjets : public IHoteScript {
 public:
  /// `modele` must outlive it; `valeur` answers `<Name>`.
  TEtatObjets(const TModele& modele, TResolveur valeur);

  const TEtatObjet& De(const TBandeModele& bande) const { return etats_.at(&bande); }
  const TEtatObjet& De(const TObjetModele& objet) const { return etats_.at(&objet); }

  QString Variable(const QString& nom) override { return valeur_(nom); }
  bool Poser(const QString& objet, TPropriete propriete, const TValeurScript& valeur) override;

 private:
  void Nommer(const QString& nom, TEtatObjet& etat);

  std::unordered_map<const void*, TEtatObjet> etats_;
  QHash<QString, TEtatObjet*> noms_;
  TResolveur valeur_;
};
