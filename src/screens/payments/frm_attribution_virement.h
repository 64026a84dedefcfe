#pragma once
#include "forms/champs.h"
#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "services/frais_eleve.h"
#include "workflows/propositions.h"

class TFrmVirement;
struct TExtrait;

/// What is typed of the payment that a movement becomes.
struct TSaisieAttribution {
  QString Libelle;
  TTypeFamilleFrais Famille = TTypeFamilleFrais::General;
  int IndexGroupe = 0;  ///< into the payment groups, from 1; 0 for none
};

/// "Attribution manuelle des paiements": whom the movement chosen in the history went to, and on to the next
/// one. Modal.
class TFrmAttributionVirement : public TForm {
 public:
  TFrmAttributionVirement(TContexteEcran& contexte, TFrmVirement& virements);

  // The movement.
  QString lblDonneurOrdre() const;
  /// "12,50 €"
  QString lblMontant() const;
  QString lblDateVirement() const;
  QString lblCommunication() const;
  QString lblCompte() const;
  /// How it stands: "Comptabilisé", else "Mouvement 3 sur 28", as they stood on the screen.
  std::pair<TNiveauEtat, QString> Etat() const;
  /// Some pupil has it.
  bool imgValide() const;
  /// It may be given to a pupil: nobody has it, and it is not hidden.
  bool Actif() const;
  /// Several have it, and a part of it is left.
  bool Partiel() const;

  // The pupil: what is typed, and the pupils of the year whose name holds it.
  const QString& SaisieEleve() const { return saisieEleve_; }
  /// The first name that begins so is chosen; else the first that holds it.
  void LUCombo1Change(const QString& texte);
  /// By name, after those who may have paid, with the reason; the object of a row is its TEleve. Nobody is
  /// chosen before something is typed.
  TGrille LUCombo1;
  /// "Proposition : LAMBERT Élise (P3 A), a déjà payé par ce compte": who stands out, while nobody is chosen
  /// and nothing is typed; else "".
  QString lblProposition() const;
  /// Gives the movement to the one who is proposed; then on to the next movement.
  void btnAccepterClick();
  /// Enter in the name: who is proposed, else "Attribuer".
  void EntreeClick();
  /// Of the pupil who is chosen, or who has the movement.
  QString lblClasse() const;

  /// edLibellePaiement, rbTP, cmbGroupePaiement.
  TChamps& Champs() { return champs_; }
  /// The name of the chosen group behind the label, once.
  void btnAjoutLibelleClick();

  /// "Attribuer": to the chosen pupil, if any; then on to the next movement.
  void Button3Click();
  /// "Répartir": between several pupils; then on to the next movement.
  void btnRepartirClick();
  /// Something of it is to be shared out.
  bool PeutRepartir() const;
  /// "Suivant", "Précédent": nothing at either end.
  void Button2Click() { Aller(1); }
  void Button1Click() { Aller(-1); }
  /// "Fermer"
  void Button4Click() { Fermer(); }

  /// Another movement is shown: the hand goes to the pupil.
  TSignal<> SurMouvement;

 protected:
  void FormShow() override;
  void FormClose() override;

 private:
  QString Place() const;
  struct TCandidat {
    TEleve* Eleve;
    QString Nom;
    QString Cle;  ///< the name as a search compares it
  };

  TTableChamps<TSaisieAttribution> Table();
  void LireEleves();
  void ProposerEleves();
  void LirePropositions();
  const TProposition* Proposition() const;
  QString Raison(const TEleve& eleve) const;
  int Groupe() const;
  void MontrerMouvement();
  void LireOrdre();
  bool Aller(int pas);
  bool Crediter(TEleve& eleve);
  TEleve* EleveChoisi() const;
  const TExtrait& Extrait() const;
  QString Cellule(int colonne) const;

  TContexteEcran& contexte_;
  TFrmVirement& virements_;
  std::vector<int> ordre_;  // rows of the history, as the screen showed them when the dialog opened
  int place_ = 0;           // the one in hand
  std::vector<TCandidat> eleves_;
  QStringList groupes_;          // the first one is none
  std::vector<int> idsGroupes_;  // in step
  std::unique_ptr<TPropositions> payeurs_;
  std::vector<TProposition> propositions_;  // of the movement in hand
  QString saisieEleve_;
  TSaisieAttribution saisie_;
  TChampsDe<TSaisieAttribution> champs_;
  TLiens liens_;
};
