#pragma once
#include "documents/statistiques.h"
#include "forms/champs.h"
#include "screens/documents/imprimeur.h"
#include "workflows/transfert_soldes.h"

/// What the pages of the statistics are filled by.
struct TCriteresRecapitulatif {
  TCriteresImpayes Impayes;
  int IndiceMois = -1;  ///< in the list of the ten months; -1 for none
  bool FraisPositifs = true;
  bool ServicesPositifs = true;
  TPeriode Passages;
  int Groupe = -1;  ///< in the list of payment groups; -1 for none
  TPeriode Fiscale;
};

/// A word and its figure, below a list.
struct TTotalListe {
  QString Mot;
  QString Valeur;
};

/// "Statistiques": who owes, who is owed, what each month brought in. A page is filled when it is opened for
/// the first time and when what it is filled by changes.
class TFrmRecapitulatif : public TForm {
 public:
  explicit TFrmRecapitulatif(TContexteEcran& contexte);

  enum TPage {
    TabImpaye,
    TabBalancePositive,
    pgDetailEntree,
    pgReleveAnnuel,
    TabListePaiement,
    TabContribution,
    TabFrais,
  };
  static QStringList Titres();
  int Page() const { return page_; }
  void ChoisirPage(int page);
  TChampsDe<TCriteresRecapitulatif>& Champs() { return champs_; }
  /// The list of unpaid items is about some month.
  bool MoisDemande() const { return criteres_.Impayes.Etendue != TEtendue::Annee; }

  // The lists. Pupils are ticked for the transfer of their balance, fees for what they cost and print.
  TGrille Impayes;
  TGrille Positives;
  TGrille Annuel;
  TGrille Paiements;
  TGrille Fiscales;
  TGrille Frais;
  /// Below the list of that page.
  std::vector<TTotalListe> Totaux(int page) const;
  /// Why its list is empty; "" when it has rows.
  QString Vide(int page) const;

  /// "Détail des entrées et sorties": the pupils who have records between the two dates. What is below one
  /// of them is read when it is asked for: date, kind, entry and exit.
  const std::vector<TEleve*>& Presents() const { return presents_; }
  std::vector<QStringList> Passages(const TEleve& eleve) const;
  /// The pupils, or the dates, are others.
  TSignal<> SurPassages;
  /// All pupils are open.
  bool ArbreEtendu() const { return etendu_; }
  /// "Réduire l'arborescence" or "Etendre l'arborescence".
  QString TexteCollapseTree() const;
  void btnCollapseTreeClick();

  /// The ten months of the annual statement and what each comes to.
  std::vector<std::pair<QString, Currency>> Mois() const;

  /// A fee was ticked or not.
  void TreeGridFraisCheckClick() { Annoncer(); }
  /// "Transfert des soldes positifs"
  void btnEtape1Click() { Transferer(TSensTransfert::Positifs, Positives); }
  /// "Transfert des soldes négatifs"
  void AdvGlowButton1Click() { Transferer(TSensTransfert::Negatifs, Impayes); }
  /// The page in front into a file for the accountant; only the first two can.
  void Exporter();

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override;
  bool LaisserChamp() override { return champs_.QuitterTout(); }

 protected:
  void FormShow() override;

 private:
  struct TDefinition;
  static const TDefinition& DefinitionDe(int page);
  void Remplir(int page);
  void RemplirImpayes();
  void RemplirPositives();
  void RemplirPassages();
  void AfficheReleveAnnuel();
  void RemplirPaiements();
  void RemplirFiscales();
  void RemplirFrais();
  TResultat ImprimerImpayes(const TContexteDocument& contexte) const;
  TResultat ImprimerPositives(const TContexteDocument& contexte) const;
  TResultat ImprimerAnnuel(const TContexteDocument& contexte) const;
  TResultat ImprimerPaiements(const TContexteDocument& contexte) const;
  TResultat ImprimerFiscales(const TContexteDocument& contexte) const;
  TResultat ImprimerFrais(const TContexteDocument& contexte) const;
  QString VideImpayes() const;
  QString VidePositives() const;
  QString VidePassages() const;
  QString VidePaiements() const;
  QString VideFiscales() const;
  QString VideFrais() const;
  std::vector<TLigneFrais> Coches() const;
  TGroupeFrais* Groupe() const;
  void Transferer(TSensTransfert sens, const TGrille& grille);
  void Dire(const QString& texte) const { contexte_.Principal.Etat(TNiveauEtat::Succes, texte); }

  TContexteEcran& contexte_;
  TCriteresRecapitulatif criteres_;
  TChampsDe<TCriteresRecapitulatif> champs_;
  int page_ = TabImpaye;
  std::vector<bool> remplies_;
  std::vector<TMontantEleve> impayes_;
  std::vector<TMontantEleve> positives_;
  std::vector<TEleve*> presents_;
  bool etendu_ = false;
  TReleveAnnuel annuel_;
  std::vector<TPaiementsEleve> paiements_;
  std::vector<TLigneFiscale> fiscales_;
  std::vector<TLigneFrais> frais_;
};
