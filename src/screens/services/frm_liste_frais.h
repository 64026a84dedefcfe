#pragma once
#include "forms/arbre.h"
#include "screens/commun/frm_liste.h"
#include "workflows/attribution_frais.h"

enum class TEtatCoche { Aucun, Certains, Tous };

/// "Liste des frais scolaires": the fees of the year on display, and which pupils owe each of them.
class TFrmListeFrais : public TFrmListeDe<TFrais> {
 public:
  explicit TFrmListeFrais(TContexteEcran& contexte);

  /// Sites, classes and pupils, the struck off too: `tvEleve`, and down to the classes `tvClasse`.
  const TArbre& Arbre() const { return arbre_; }
  /// "Le frais concerne:": which of the trees is shown.
  TTypeFrais Concerne() { return static_cast<TTypeFrais>(Champs().Entier(concerne_)); }
  /// Of the pupil, or of those below; null is the whole school.
  TEtatCoche EtatDe(const TNoeud* noeud) const;
  /// The pupil is ticked and has paid, or will have.
  bool EstPaye(const TNoeud& noeud) const;
  /// Ticks or unticks the pupil, or all those below; nothing while one only reads. Null as above.
  void Cocher(const TNoeud* noeud, bool coche);
  /// How many are ticked: "12 élèves".
  QString TexteCoches() const;

  /// "Mode frais déjà payés": who is ticked counts as having paid.
  void btnFraisPayeClick();
  QString TexteMode() const;
  bool ModePaye() const { return attribution_.ModePaye(); }

  bool EstModifie() const override {
    return TFrmListe::EstModifie() || (Ecrit() && attribution_.EstModifiee());
  }

  /// The ticks, or the tree that shows them, have changed.
  TSignal<> SurCoches;

 protected:
  void FormShow() override;
  TCollection<TFrais>& Collection() const override;
  void Preparer(TFrais& nouveau) override { nouveau.FlgRecurent = recurent_; }
  bool Controler() override;
  void MontrerLigne() override;
  void MontrerNouveau() override;
  void Ranger(bool nouveau) override;
  TCellules Oter() override;
  void Remettre(const TCellules& valeurs) override;

 private:
  QString RendreApresRefus(int cle, TAttributionFrais::TLignesRetirees& lignes);
  bool Ecrit() const { return Mode() != TModeEdition::Lecture; }
  void OuvrirCoches(TFrais* frais);
  const std::vector<std::unique_ptr<TNoeud>>& Sous(const TNoeud* noeud) const {
    return noeud != nullptr ? noeud->Enfants() : arbre_.Racines();
  }
  void CocherSous(const TNoeud* noeud, bool coche);

  TArbre arbre_;
  TAttributionFrais attribution_;
  TAttributionFrais::TLignesRetirees retirees_;  ///< of the fee that was deleted last
  bool recurent_ = false;                        ///< the same fee's, while it comes back
  bool recurentSupprime_ = false;
  int rendu_ = 0;       ///< key under which it has come back, its pupils not all yet
  bool range_ = false;  ///< the new fee is stored, but not given to all yet
  int concerne_ = -1;
  int mois_ = -1;
  TLiens liens_;
};
