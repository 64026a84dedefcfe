#pragma once
#include "forms/grille.h"
#include "forms/vide.h"
#include "screens/contexte_ecran.h"
#include "workflows/import_virements.h"

/// "Virements": bringing the bank's file in, and the movements of the year with whom they went to.
class TFrmVirement : public TForm {
 public:
  explicit TFrmVirement(TContexteEcran& contexte);

  // "Importation des virements"
  /// Step 1: asks for a file, reads and shows it.
  void btnEtape1Click();
  /// Step 2: stores the new movements and credits them. What ends it raises Exception; what was done stays.
  void btnEtape2Click();
  bool Etape1Active() const { return !enCours_; }
  bool Etape2Active() const { return !enCours_ && pret_; }
  /// Step 2 is what comes next; else step 1.
  bool Etape2Suivante() const { return Etape2Active() && !memorise_ && Apercu.NombreLignes() > 0; }
  /// Step 2 runs; its bar counts two steps a row.
  bool EnCours() const { return enCours_; }
  int TotalEtape2() const { return 2 * static_cast<int>(import_.Rangees().size()); }
  /// What is said of the file and of step 2, lines apart.
  const QString& Statut() const { return import_.Statut(); }
  /// "3 mouvements sont peut-être déjà importés : ..."; "" without one.
  QString NoteApercu() const;
  /// The box of a row that is perhaps imported already: stored all the same.
  void Cocher(int ligne, bool coche);

  /// Of both lists; the last one is of the history.
  enum TColonne { Donneur, Date, Montant, Communication, Compte, Eleve, Classe, Resp };
  TGrille Apercu;  ///< the rows of the file; their states are those of TEtatMouvement

  // "Historique des virements"
  TGrille Historique;  ///< the object of a row is its TExtrait
  /// "Récapitulatif du 03/10/2016 au 28/10/2016"
  const QString& TitreHistorique() const { return titre_; }
  int lblCompta() const { return compta_; }
  int lblInconnu() const { return inconnu_; }
  int lblTotal() const { return total_; }
  bool btnComptabilise() const { return voitComptabilises_; }
  bool btnInconnu() const { return voitInconnus_; }
  void btnComptabiliseClick() { Basculer(voitComptabilises_); }
  void btnInconnuClick() { Basculer(voitInconnus_); }
  bool CachesInclus() const { return voitCaches_; }
  /// In the place of a history without a row.
  TVide HistoriqueVide() const;

  // On the current row.
  /// Opens the attribution.
  void grdHistoriqueDblClick();
  /// "Attribuer à l'année scolaire précédente", "... suivante"
  void AnneePrecedenteClick() { AttribuerAnnee(-1); }
  void AnneeSuivanteClick() { AttribuerAnnee(1); }
  /// "Cacher le mouvement"
  void Supprimerlextrait1Click();
  /// "Inclure tous les mouvements cachés"
  void mnuAfficheMouvementClick() { Basculer(voitCaches_); }
  /// "Compte responsable 1", "Compte responsable 2"
  void Compteresponsable11Click() { Repondre(1); }
  void Compteresponsable21Click() { Repondre(2); }

  // What the attribution sees of the history.
  /// The movement of the current row; null for none.
  TExtrait* Courant() const;
  /// Who shows the history writes its rows there, filtered and in order.
  TSignal<std::vector<int>&> SurOrdre;
  /// The rows as the screen shows them; as they stand when it shows none.
  std::vector<int> Ordre() const;
  /// The row that stands so many rows behind the current one on the screen; -1 at either end.
  int Voisine(int pas) const;
  /// The current movement went to that pupil: its row and the counts follow.
  void Attribue(const TEleve& eleve);
  /// The row of the current movement, and the counts, from the map of the movements.
  void MontrerCourant();

  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;
  void FormClose() override;

 private:
  void Lire(const QString& chemin);
  void RelireMouvements();
  void RemplirApercu();
  void AjouterFaute();
  void Terminer(TNiveauEtat niveau, const QString& texte);
  void RemplirHistorique();
  void AjouterMouvement(TExtrait& extrait);
  static TCellules CellulesHistorique(const TExtrait& extrait);
  void Basculer(bool& drapeau);
  /// False, after a word in the status bar, without a current movement.
  bool ExigeMouvement() const;
  bool EstComptabilise(const TExtrait& extrait) const;
  void AttribuerAnnee(int pas);
  void Repondre(int responsable);
  void RetirerCourante();
  bool Enregistrer(TExtrait& extrait, const QString& fait, bool libre = false);
  void Signaler(TNiveauEtat niveau, const QString& texte) const;

  TContexteEcran& contexte_;
  TImportVirements import_;
  QString titre_;
  int compta_ = 0, inconnu_ = 0, total_ = 0;
  bool voitComptabilises_ = true, voitInconnus_ = true, voitCaches_ = false;
  bool pret_ = false;      // step 2 may be taken
  bool memorise_ = false;  // it has been taken
  bool enCours_ = false;
};
