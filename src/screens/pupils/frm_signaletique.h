#pragma once
#include <QImage>

#include "core/distributor.h"
#include "core/mois.h"
#include "screens/attendance/frm_releve_calendrier.h"
#include "screens/documents/imprimeur.h"
#include "screens/pupils/champs_eleve.h"
#include "screens/pupils/frais_paiements.h"
#include "screens/pupils/groupes_mois.h"
#include "screens/pupils/releve_mensuel.h"
#include "workflows/memoriser.h"

struct TActiviteEleve;
struct TFraisEleve;
struct TPaiement;
struct TPresence;
class TAllFraisEleve;

/// The record of the selected pupil: who it is, its photo, month by month, its services of a month, its
/// fees and payments; and the documents of the pupils. Each control writes and stores when it is left or
/// clicked.
class TFrmSignaletique : public TForm {
 public:
  explicit TFrmSignaletique(const TContexteEcran& contexte);
  /// EleveChange, Imprimer, Courriel, AssistantConfirme.
  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override;
  bool LaisserChamp() override { return champs_.QuitterTout(); }
  /// What a field holds that was refused.
  QString EnSuspens() const override;

  /// False before the first pupil and when the one on display went with its year.
  bool AvecEleve() const { return avecEleve_; }
  TChampsDe<TEleve>& Champs() { return champs_; }
  /// The record of that pupil, with the hand in that field; "" for none.
  void AllerAuChamp(TEleve& eleve, const QString& champ);
  const QString& NomComplet() const { return nomComplet_; }
  /// The full name; without a pupil, what to do to have one.
  QString Titre() const;
  /// "P3 A · Centre · Matricule 212-04127-38"; what is not known is left out.
  const QString& SousTitre() const { return sousTitre_; }
  /// A null picture without a photo.
  const QImage& Photo() const { return photo_; }
  /// One is stored, whether or not it can be shown.
  bool AvecPhoto() const;
  const std::array<TGroupeMois, 3>& Mois() const { return mois_; }
  /// A box of a group (0 to 2), its month by its place; the boxes go back without a pupil.
  void cbMoisClick(int groupe, int mois, bool coche) { MarquerMois(groupe, {mois}, coche); }
  /// A master box: all ten.
  void cbMaitreClick(int groupe, bool coche);
  Currency Solde() const { return Frais.Solde; }
  /// In a word: "À payer".
  TEtatGrille EtatSolde() const;

  // Outside activities.
  bool ActivitesExtVisibles() const { return !titreActivitesExt_.isEmpty(); }
  const QString& TitreActivitesExt() const { return titreActivitesExt_; }
  /// Monday to Friday.
  const std::array<bool, 5>& JoursActivite() const { return joursActivite_; }
  /// The year has activities, so that there is something to say of those of the pupil.
  bool ActivitesVisibles() const { return activitesVisibles_; }
  /// `jour` 0 for Monday. Nothing without a pupil.
  void cbLundi1Click(int jour, bool coche);
  /// An activity of the year and the days on which the pupil follows it.
  struct TActiviteSuivie {
    int ActiviteId;
    QString Libelle;
    std::array<bool, 5> Jours;
  };
  const std::vector<TActiviteSuivie>& Activites() const { return activites_; }
  void cbJourActiviteClick(int activite, int jour, bool coche);

  /// The account that pays for the pupil, as the bank's movements of the year show it.
  void AdvGlowButton1Click();

  // Photo.
  /// "Cliquez ici pour ajouter une photo"
  void Image1Click();
  /// The picture of a file that was chosen, or dropped on the photo.
  void PrendrePhoto(const QString& chemin);
  /// "Effacer la photo"
  void Effacerlaphoto1Click();

  // The month of the list, 0 for September to 9 for June.
  int IndiceMois() const { return indiceMois_; }
  /// The same, 1 to 12.
  int MoisVu() const { return kMoisScolaires[static_cast<std::size_t>(indiceMois_)]; }
  /// Whose the lists are and of when, for the names of their files: "LAMBERT Élise", "octobre 2016".
  QStringList NomReleve() const;
  QStringList NomFrais() const;
  void cmbMoisChange(int indice);
  /// Instead of a list without a row: "Aucun relevé en novembre"; else "".
  QString TexteSansReleve() const;

  // Monthly list.
  /// A new record, by the dialog.
  void btnAjoutFaitClick();
  void btnDeleteFaitClick();
  /// Study and meals on the days of a calendar.
  void btnCalendrierClick();
  /// "Accueil extrascolaire": the day-care of the whole school in the month of the list.
  void SpeedButton3Click();

  // Fees and payments.
  /// A new payment.
  void SpeedButton1Click();
  /// Deletes the chosen line.
  void SpeedButton2Click();
  /// Changes the chosen payment; what is no payment by hand says so in the status bar.
  void grdListeFraisDblClick();
  /// The box of the row: a month or a fee is paid, or not any more. A part payment is asked about.
  void grdListeFraisCocheClick(int ligne);

  /// What was deleted last of this pupil comes back as a new row; only until the next change.
  void Retablir();
  bool PeutRetablir() const;

  TReleveMensuel Releve;
  TFraisPaiements Frais;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  void PrendreEleve();
  void PrendreEnMain(TEleve& eleve);
  void LireFiche(TEleve& eleve);
  void LireActivites(const TEleve& eleve);
  TTableChamps<TEleve> Table();
  /// False, with the message, without a pupil.
  bool ExigeEleve();
  void EnregistrerEleve(const TChamp& champ);
  void SauverEleve(TEleve& eleve);
  void DonnerCompte(TEleve& eleve, const QString& numero, const QString& titulaire);
  /// Stores a collection and says what was done. False after the message of the database, when a new row can
  /// be given no key, or when another workstation has deleted the row; memory is then what the table holds.
  template <class T>
  bool Enregistrer(TCollection<T>& collection, const QString& fait) {
    const auto disparue = [&] {
      for (const T& objet : collection) ExigerCle(objet);
      return !collection.RangeesDisparues().empty();
    };
    return Enregistrer(collection, disparue, fait);
  }
  bool Enregistrer(TDistributor& collection, const std::function<bool()>& disparue, const QString& fait);
  /// The same of one payment, which takes no more of its bank movement than the others leave.
  void EnregistrerPaiement(TAllFraisEleve& lignes, TFraisEleve& paiement, const QString& fait);
  void DireEnregistre(const QString& fait);
  void DireNonEnregistre(const Exception& e) const;
  void MarquerMois(int groupe, const std::vector<int>& mois, bool coche);
  void MarquerJour(TActiviteEleve* inscription, int activite, int jour, bool coche);
  /// What a change moves: the monthly list, the fees, the balances.
  void RelireListes();
  /// With that row of the fees in hand, or the last one when there is none such.
  void RelireListes(int frais);
  void DaterPhotos();
  /// `derive`: what goes with it, if anything.
  void AjouterReleve(std::unique_ptr<TPresence> releve, std::unique_ptr<TPresence> derive = nullptr);
  void DireReleve(const TPresence& demande, bool garde, bool prolonge) const;
  void AjouterLigne(std::unique_ptr<TFraisEleve> ligne, const QString& fait);
  void Offrir(const QString& supprime, std::function<void()> retour);
  void BasculerMois(TPaiement& mois);
  void PayerMois(std::unique_ptr<TPaiement> mois, const QString& quoi);
  void BasculerFrais(TFraisEleve& frais);
  void Signaler(const QString& texte) const;
  void LirePhoto(const TEleve& eleve);
  void RemplirReleve(const TEleve& eleve);
  void Vider();

  const TContexteEcran& contexte_;
  TImprimeur imprimeur_;
  bool avecEleve_ = false;
  QString nomComplet_;
  QString sousTitre_;
  QImage photo_;
  std::array<TGroupeMois, 3> mois_ = GroupesMois();
  QString titreActivitesExt_;
  std::array<bool, 5> joursActivite_{};
  bool activitesVisibles_ = false;
  std::vector<TActiviteSuivie> activites_;
  int indiceMois_ = 0;
  TChampsDe<TEleve> champs_;
  TLien refus_;
  struct TAnnulation {
    int EleveId = 0;
    std::function<void()> Faire;
  };
  TAnnulation annulation_;
  TVuCalendrier vuCalendrier_;
};
