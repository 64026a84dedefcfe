#pragma once
#include <functional>

#include "core/calendrier_scolaire.h"
#include "forms/champs.h"
#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "screens/documents/assistant.h"

enum class TPageAssistant { Rapport, Qui, Periode };
enum class TChoixQui { Eleve, Eleves, Classe, Classes };
enum class TChoixPeriode { Mois, Periode, Annee };
/// Where the wizard puts the focus after a refusal.
enum class TChampAssistant { Mois, LstEleve, LstClasse };

/// "Assistant d'impression": which document, for whom, for when. It knows nothing of documents: a screen
/// gives it titles and gets the choice back, after the wizard has closed.
class TFrmPrintWizard : public TForm, public IAssistant {
 public:
  explicit TFrmPrintWizard(const TContexteEcran& contexte);
  std::optional<TChoixDocument> Demander(const TDemandeAssistant& demande) override;
  /// ImprimerAssistant asks the same; who sent it gets AssistantConfirme with the choice.
  bool RecevoirMessage(const TMessage& message) override;

  // Pages. The last visible one has the finish button.
  TPageAssistant Page() const { return page_; }
  bool PageVisible(TPageAssistant page) const;
  bool EstPremierePage() const { return PageVoisine(-1) == page_; }
  bool EstDernierePage() const { return PageVoisine(1) == page_; }
  void btnPrecedentClick() { OuvrirPage(PageVoisine(-1)); }
  /// Stays, after a message, on the page of who as long as nobody is chosen.
  void btnSuivantClick();
  void btnAnnulerClick();
  void KWizard1FinishButtonClick();

  // Title page.
  const std::vector<TTitreAssistant>& Titres() const { return demande_.Titres; }
  int Indice() const { return indice_; }  ///< of the checked title; -1 without titles
  void ChoixRapportClick(int indice);
  /// Of the document that this session chose last; -1 when it is not offered.
  int IndiceDernier() const;
  void btnDernierClick();

  // Who page. Ticks of the two lists are the rows' own.
  TChoixQui ChoixQui() const { return choixQui_; }
  /// False for the current pupil or class when there is none.
  bool ChoixQuiPossible(TChoixQui choix) const;
  void RbEleveClick(TChoixQui choix);
  bool LstEleveActive() const { return choixQui_ == TChoixQui::Eleves; }
  bool LstClasseActive() const { return choixQui_ == TChoixQui::Classes; }
  bool SelectionActive() const { return LstEleveActive() || LstClasseActive(); }
  /// Ticks the rows of the enabled list that its filter shows.
  void btnToutSelectionnerClick();
  /// Clears every tick of the enabled list.
  void btnRienSelectionnerClick();
  /// A click on the header of a list: what is chosen in it comes in the order that it shows.
  void LstEleveColumnClick(int colonne, bool croissant) { Trier(LstEleve, triEleve_, colonne, croissant); }
  void LstClasseColumnClick(int colonne, bool croissant) { Trier(LstClasse, triClasse_, colonne, croissant); }
  /// "2 classes, 43 élèves"
  QString Compte() const;

  // Period page; of a title of a calendar year, its year.
  /// The years to choose from; none when the checked title takes a period, or nothing.
  const std::vector<int>& Annees() const;
  int Annee() const { return annee_; }
  void ChoisirAnnee(int annee);
  /// Whom the choice covers, in sentences; "" without years.
  QString Portee() const;
  TChoixPeriode ChoixPeriode() const { return choixPeriode_; }
  void RbMoisClick(TChoixPeriode choix);
  const QStringList& cmbMois() const { return mois_; }
  int IndiceMois() const { return indiceMois_; }  ///< 0 is September; -1 for none
  void ChoisirMois(int indice);
  /// 1 to 12, the month that the screen behind shows; 0 for none.
  int MoisEcran() const { return demande_.MoisEcran; }
  void btnMoisEcranClick();
  /// "dtDate1" and "dtDate2", both included; they answer as long as "La période du :" is chosen.
  TChamps& Dates() { return champs_; }
  /// "du 1er septembre 2018 au 30 juin 2019"
  QString TexteAnnee() const;
  /// What will be printed, in one line.
  QString Resume() const;

  QString lblEleve, lblClasse;  ///< names of the current pupil and class
  TGrille LstEleve, LstClasse;
  /// What is typed above that list; a row that it hides keeps its tick.
  void Filtrer(const TGrille& liste, const QString& filtre);
  TSignal<TChampAssistant> SurFoyer;

 private:
  struct TTri {
    int Colonne = -1;
    bool Croissant = true;
  };
  /// A row as the year gives it; the key tells who it is when the year has been loaded again.
  struct TLigneListe {
    TObjetVu Objet;
    TCellules Textes;
    QString Cle;
    bool operator==(const TLigneListe&) const = default;
  };
  using TContenu = std::vector<TLigneListe>;

  void Preparer(const TDemandeAssistant& demande);
  int PremierPossible() const;
  void ChoisirQui();
  void RemplirListes();
  void PoserDates();
  static void RangerNoms(TContenu& pupilles);
  static void Remplir(TGrille& liste, TContenu& avant, TContenu contenu, const TTri& tri);
  static void Trier(TGrille& liste, TTri& tri, int colonne, bool croissant);
  TPageAssistant PageVoisine(int sens) const;
  void OuvrirPage(TPageAssistant page);
  void Refuser(const QString& texte, TChampAssistant champ);
  void RefuserPersonne();
  bool AQuelquun() const;
  void AjouterChoisis(TChoixDocument& choix) const;
  const TTitreAssistant* Titre() const;
  bool DemandePeriode() const;
  TPeriode Periode() const;
  QString TexteQui() const;
  QString TextePeriode() const;

  const TContexteEcran& contexte_;
  TDemandeAssistant demande_;
  TPageAssistant page_ = TPageAssistant::Rapport;
  int indice_ = -1;
  QString dernier_;  ///< title of the last document chosen
  int annee_ = 0;    ///< of a title of a calendar year
  TChoixQui choixQui_ = TChoixQui::Eleve;
  bool quiChoisi_ = false;  ///< by the user
  TContenu contenuEleves_, contenuClasses_;
  TTri triEleve_, triClasse_;
  TChoixPeriode choixPeriode_ = TChoixPeriode::Mois;
  QStringList mois_;
  int indiceMois_ = -1;
  QString filtreEleve_, filtreClasse_;
  TPeriode periode_;  ///< by its dates
  TChampsDe<TPeriode> champs_;
  TChoixDocument choix_;  ///< of the last finish
  TLiens liens_;
};
