#pragma once
#include <functional>

#include "forms/arbre.h"
#include "forms/vide.h"
#include "screens/principal/commandes.h"

/// What the left of the status bar says.
struct TEtatPrincipal {
  TNiveauEtat Niveau = TNiveauEtat::Neutre;
  QString Texte;
};

/// A line of what a school does first.
struct TEtapeAccueil {
  std::optional<TGestionnaire> Gestionnaire;  ///< none for the choice of the year
  QString Titre;
  QString Icone;
  QString Explication;
  QString Bouton;
  bool Faite;
  bool Possible;               ///< its screen can be opened
  QString RaisonInactive;      ///< why not, or ""
  bool Prochaine;              ///< the first one that is left and possible
  QString Ecarter = {};        ///< caption of what does without the step in this year; "" for nothing
  QString ReglageEcarte = {};  ///< the workstation's setting that keeps that year
};

/// The main window: pages and commands, the pupil tree and its search, the menu of years, and the
/// panel with the open screen. Its view follows the `Sur...` operations.
class TFrmMain : public TForm, public IFenetrePrincipale, public ILienPrincipal {
 public:
  /// All must outlive it. Nothing is opened before `Montrer`.
  TFrmMain(TDataModule1& base, TReglagesPoste& reglages, const THorloge& horloge, IFenetreModale& modale,
           IApercu& apercu);
  ~TFrmMain() override;

  // Bar.
  bool PageVisible(TPage page) const;
  /// A page that is shown.
  TPage PageActive() const;
  /// The pages that are shown, with their captions, in order.
  std::vector<TPagePrincipale> Pages() const;
  /// A click on the tab; with no pupil in the year the first page shows again what comes first.
  void PageClick(TPage page);
  std::vector<TCommandePrincipale> Commandes = CommandesPrincipales();
  bool CommandeVisible(const TCommandePrincipale& commande) const;
  bool CommandeActive(const TCommandePrincipale& commande) const;
  /// Why the command is off, or "".
  QString RaisonInactive(const TCommandePrincipale& commande) const;
  /// The one whose screen is at the front; null for none.
  const TCommandePrincipale* CommandeOuverte() const;
  void Executer(TGestionnaire gestionnaire);
  bool OutilVisible(TOutil outil) const;
  bool OutilActif(TOutil outil) const;
  /// It is shown, and answers with why it is off.
  bool OutilEmpeche(TOutil outil) const;
  /// Sends its message to the open screen (`btnPrintClick` and the others).
  void OutilClick(TOutil outil);

  // Years.
  /// First years of the menu, the four fixed ones and on to the year after the working one.
  std::vector<int> Annees() const;
  int AnneeCochee() const { return anneeCochee_; }
  QString IntituleAnnee() const { return intituleAnnee_; }
  void mnuAnneeClick(int annee);
  /// The year on display is read again, with what other workstations have done.
  void RechargerAnnee();
  /// A year is on display, or can be as soon as the settings let it.
  bool PeutChoisirAnnee() const;

  // Tree and search.
  bool ArbreVisible() const { return arbreVisible_; }
  /// Also when the control that the user left had something to say: the node chosen is the one selected.
  void ChoisirNoeud(TNoeud* noeud) { Arbre.Selectionner(noeud); }
  void edSearchChange(const QString& texte);
  /// The text without what the search does not take.
  static QString edSearchKeyPress(const QString& texte);
  /// What is typed or pasted in the field; gives what the field then shows. Digits alone are a register
  /// number, which Enter looks for.
  QString edSearchSaisie(const QString& texte);
  /// Enter.
  void btnRechercheClick();
  /// Of a search that found several pupils but no beginning of a name, for the user to choose from.
  const std::vector<TEleve*>& Trouves() const { return trouves_; }
  void ChoisirTrouve(int rang);
  const QString& TexteRecherche() const { return recherche_; }
  int NombreEleves() const;
  /// "412 élèves, dont 3 radiés, 2 sans implantation"
  QString TexteNombres() const;

  // Teachers.
  void Ajouterunprofesseur1Click();
  bool PeutAjouterProfesseur() const { return EstRelie() && !EnTravail(); }
  void Supprimerunprofesseur1Click();
  /// The selected node is a teacher.
  bool PeutSupprimerProfesseur() const;

  // First use.
  /// A step is left, and no screen in front.
  bool PremiereUtilisation() const;
  bool SansEleve() const;
  /// In the place of the pupil tree; no title while there are pupils.
  TVide ArbreVide() const;
  /// What stands above the steps of the first use.
  TVide Accueil() const;
  /// In the place of the screen when none is open.
  TVide SansEcran() const;
  /// A step is left: always without a pupil, else in the working year only.
  bool ResteAFaire() const;
  std::vector<TEtapeAccueil> Etapes() const;
  void EtapeClick(const TEtapeAccueil& etape);
  /// The working year does without fees: this workstation asks for them no more.
  void EcarterClick(const TEtapeAccueil& etape);

  // State.
  /// A year is on display.
  bool EstRelie() const;
  const TEtatPrincipal& Etat() const { return etat_; }
  /// "" without a connection.
  QString Serveur() const;
  /// "Serveur : ecole", "Hors ligne" or "Non connecté"
  QString TexteServeur() const;
  int AnneeTravail() const { return Globals.AnneeScolaire; }
  bool AnneeDeTravailAffichee() const { return anneeCochee_ == Globals.AnneeScolaire; }
  /// A long work goes on; `total` 0 ends it. Commands, tree and closing are off meanwhile.
  void Travail(int total);
  bool EnTravail() const { return enTravail_; }
  /// What the work is, by the screen that does it: "Travail en cours : Importation".
  QString TexteTravail() const;

  // What screens send.
  bool RecevoirMessage(const TMessage& message) override;
  void Envoyer(const TMessage& message) override { RecevoirMessage(message); }
  void AllerAEcole(const QString& champ) override;
  void AllerAEleve(int annee, int eleveId, const QString& champ) override;
  void AllerAuTransfert() override;
  void Etat(TNiveauEtat niveau, const QString& texte) override;

  // What the controller tells.
  void MontrerPage(TPage page, bool oui) override;
  void ActiverPage(TPage page) override;
  void MontrerCommande(TCommandePage commande, bool oui) override;
  void MontrerArbre(bool oui) override;
  void SuspendreArbre(bool oui) override { arbreSuspendu_ = oui; }
  void ConstruireArbre() override;
  void IntitulerAnnee(const QString& texte) override;
  void CocherAnnee(int annee) override;
  void OuvrirReservationTablette() override;
  void OuvrirReservation() override;
  void FermerEcran() override;
  void QuitterChamp() override;
  void DureeBulles(int ms) override;
  void Terminer() override;

  // Followed by the view, besides SurChangement.
  TSignal<TForm&, TEtapeForm> SurEtape;
  TSignal<> SurSelection;  ///< before the screens are told
  TSignal<> SurTrouves;
  TSignal<> SurEtat;
  TSignal<> SurOutils;  ///< shared commands go on or off
  TSignal<> SurTerminer;
  TSignal<int> SurDureeBulles;

  TControleur Controleur;
  TContexteEcran Contexte;
  TArbre Arbre;
  TPanneau Panneau;

 protected:
  void FormShow() override;
  void FormClose() override;
  bool FormCloseQuery() override;

 private:
  const TCommandePrincipale& Commande(TGestionnaire gestionnaire) const;
  void RouvrirPlace();
  void Rouvrir(int eleve, const QString& place);
  std::pair<int, QString> Place() const;
  bool ChoisirAnnee(int annee);
  void MemoriserPlace();
  void tvEleveChange();
  /// What was done, and what the screen that had to go for it has left undone.
  void EtatApresEcran(TNiveauEtat niveau, const QString& fait);
  void OublierEcran();
  void Diffuser(TCodeMessage code);
  bool EcranAccepte();
  TNoeud* NoeudQuiCommence(TNoeud* debut) const;
  TEtapeAccueil EtapeAnnee() const;
  TEtapeAccueil EtapeDe(TGestionnaire gestionnaire, const QString& explication, const QString& bouton,
                        bool faite) const;
  void ChoisirPremiereAnnee();
  TEtapeAccueil EtapeReglages() const;
  TEtapeAccueil EtapeImportation() const;
  TEtapeAccueil EtapeFrais() const;
  bool EstEcartee(const QString& reglage) const;
  bool EstBureau() const;
  void ChoisirEleve(TEleve& eleve);
  void OuvrirNoeud(TNoeud& noeud, bool fiche);
  void OuvrirEleve(TEleve& eleve, bool fiche);
  void OuvrirFiche(bool demandee);
  QString TexteRang() const;
  void LaisserEleve();
  void MontrerTrouves(std::vector<TEleve*> trouves);
  std::vector<TEleve*> ElevesConnus() const;
  bool ChercherPartout(bool fiche);
  void OuvrirMatricule();
  /// Of the year on display, without the staff.
  struct TNombres {
    int Eleves = 0, Radies = 0, SansSite = 0;
  };
  TNombres CompterLesEleves() const;

  TReglagesPoste& reglages_;
  std::vector<TPage> pagesCachees_{TPage::pgRepas, TPage::pgRepas3};
  std::vector<TGestionnaire> commandesCachees_;
  TPage page_ = TPage::PgEleve;
  int outils_ = 0;
  bool accueilDevant_ = false;  // what comes first stands before the open screen
  bool arbreVisible_ = true;
  bool arbreSuspendu_ = false;
  QString intituleAnnee_;
  int anneeCochee_ = 0;
  QString recherche_;
  QString matricule_;  // digits typed in the search
  std::vector<TEleve*> trouves_;
  TEtatPrincipal etat_;
  QString enSuspens_;  // of the screen that was freed last
  bool enTravail_ = false;
  std::function<void()> ensuite_;  ///< what waits until the screen that asked for it has ended
  TLiens liens_;
  TLien ecran_;  ///< the screen in front
};
