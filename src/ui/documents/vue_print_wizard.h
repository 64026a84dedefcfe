#pragma once
#include "screens/documents/frm_print_wizard.h"
#include "ui/commun/dialogue_base.h"

class ChampFiltre;
class LiaisonChamps;
class QButtonGroup;
class QComboBox;
class QRadioButton;
class QStackedWidget;
class VueGrille;

/// The wizard's three pages under their steps.
class VuePrintWizard : public DialogueBase {
  Q_OBJECT
 public:
  VuePrintWizard(TFrmPrintWizard& form, QWidget* parent);

 protected:
  /// Next page, or the finish on the last.
  bool Valider() override;

 private:
  /// A list of the who page with what stands above it.
  struct TListe {
    QRadioButton* Courant;  ///< "L'élève actuellement sélectionné :"
    Etiquette* Nom;
    QRadioButton* Plusieurs;
    ChampFiltre* Filtre;
    VueGrille* Vue;
  };

  QWidget* CreerEtapes();
  QWidget* CreerPageRapport();
  QWidget* CreerPageQui();
  QWidget* CreerPagePeriode();
  /// All four choices stand in one widget, so that arrows lead from one to the next.
  QLayout* CreerListe(TListe& liste, const QString& courant, const QString& plusieurs, TGrille& grille,
                      const QString& nom);
  QWidget* CreerPeriodes();
  QWidget* CreerAnnees();
  QWidget* CreerLigneMois();
  QWidget* CreerLigneDates();
  void Suivre();
  void SuivreListe(const TListe& liste, const TGrille& grille, const std::function<void(int, bool)>& trier);
  void Rafraichir();
  void RafraichirEtapes();
  void RafraichirQui();
  void RafraichirPeriode();
  void RafraichirAnnees();
  void FoyerDePage();
  void AllerAuChamp(TChampAssistant champ);

  TFrmPrintWizard& form_;
  std::vector<Etiquette*> etapes_;
  Etiquette* question_;
  QStackedWidget* pages_;
  QPushButton* precedent_;
  QButtonGroup* titres_;
  QButtonGroup* qui_;
  QButtonGroup* periode_;
  TListe eleves_{}, classes_{};
  QPushButton* tout_ = nullptr;
  QPushButton* rien_ = nullptr;
  Etiquette* compte_ = nullptr;
  QComboBox* mois_ = nullptr;
  LiaisonChamps* dates_;
  QWidget* periodes_ = nullptr;     ///< of a title that takes a period
  QWidget* ligneAnnees_ = nullptr;  ///< of one of a calendar year
  QComboBox* annees_ = nullptr;
  Etiquette* portee_ = nullptr;
  Etiquette* annee_ = nullptr;
  Etiquette* resume_ = nullptr;
  TLiens liens_;
};
