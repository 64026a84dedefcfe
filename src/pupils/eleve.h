#pragma once
#include <QImage>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "attendance/ligne_service.h"
#include "core/base_object.h"
#include "core/calendrier_scolaire.h"
#include "core/currency.h"
#include "core/dates.h"
#include "core/mois.h"
#include "meals/comptage.h"
#include "meals/tickets.h"
#include "pupils/classe.h"
#include "pupils/service.h"

class TAllFraisEleve;
class TDataModule1;
enum class TTypeFamilleFrais : std::uint8_t;
struct TCommande;
struct TFraisEleve;

/// A pupil, or a member of the staff, who is a pupil of a class whose name holds "PROF". What is read
/// on first use - fees, photo - lives as long as the pupil.
class TEleve : public TBaseObject {
 public:
  TEleve();
  ~TEleve() override;

  QString NomComplet() const;
  /// "P3 A"; " " without class.
  QString LibelleClasse() const;
  /// By the class alone, without the sub-class.
  TCategorie Categorie() const { return CategorieDeClasse(CodeClasse); }
  /// Short name of the site, or its code when it has none.
  QString LibelleImplantation() const;

  /// The fee lines of the year, read on first use; null off-line and for a pupil not yet saved.
  TAllFraisEleve* GetAllFrais() const;

  /// Thumbnail of 95 x 110 pixels, kept; a null picture without a photo. A damaged photo raises
  /// Exception once and then counts as none.
  const QImage& GetPhoto() const;
  /// The stored picture; none without a photo.
  std::optional<QByteArray> OctetsPhoto() const;
  /// Stores the picture at its full size; false when no key could be had, which the user has been told.
  /// Raises Exception.
  bool SetPhoto(const QImage& image);
  void DeletePhoto();

  /// Number of the tax attestation, taken and stored at once the first time, for good. 0 when no
  /// number can be had, which the user has then been told.
  int GetNumAttestation();

  // Meals, of a pupil in a collection. They raise Exception off-line. What stores raises EDistributor, and
  // the data concerned are then read again when next asked for. So it does, with nothing stored, when another
  // workstation has changed the pupil's tickets, or the cash of the day, since they were read.

  /// The tickets, read on first use.
  TTickets& GetTickets() const;
  /// Bought less used; it does not need the list.
  int SoldeTickets() const;
  /// They are read again when next asked for.
  void ClearTickets() const;
  /// Buys tickets of that value, missing ones first.
  void AcheterTickets(int nombre, TPaiementTicket type, Currency valeur, TDateTime date);
  /// Notes a meal that was eaten without a ticket.
  void AjouterCredit(Currency valeur, TDateTime date);
  /// Deletes a ticket of the list.
  void SupprimerTicket(TTicket& ticket);
  /// The order of a day, or null.
  TCommande* GetCommande(TDateTime date) const;
  /// Whether the order of the day is complete; no order is.
  bool CommandeValide(TDateTime date) const;
  /// Changes the order of a day, a new one when there is none, stores it, and takes or frees the ticket of
  /// the day. False, with nothing changed, when another workstation has made that order in the meantime: it
  /// has been read.
  bool SetCommande(TDateTime date, Currency valeurTicket, const std::function<void(TCommande&)>& changement);
  /// The sum of the payments to the meal account over three years. Orders take nothing off.
  Currency SoldeRepas() const;
  /// What was paid to the meal account on a day.
  Currency RecuLe(TDateTime jour) const;
  /// Puts cash on the meal account: it takes the place of what was counted before on that day.
  void EncaisserRepas(TDateTime jour, const TComptage& comptage);

  // The account, of a pupil in a collection, from the data as they stand at each call. A month is 1 to
  // 12, else EConvertError; `annee` is a school year. What is said of fees leaves the forecast ones out.

  /// What a service costs in the period, and the records charged; 0 without presences. Whether a
  /// third child pays it is for the caller to see (EstAccueil).
  Currency CoutService(TService service, const TPeriode& periode, TLignesService& lignes) const;
  /// The seven services; of a third child meals and soups only.
  Currency TotalServices(const TPeriode& periode) const;
  /// Morning, evening, Wednesday and study; 0 for a third child.
  Currency TotalGarderies(const TPeriode& periode) const;
  Currency CoutServicesPeriode(const TPeriode& periode) const;
  /// The same for each of the ten months of the year loaded, in their order, at the price of the year.
  std::array<Currency, kMoisScolaires.size()> CoutsServicesMois() const;
  /// Fees that count as services, whose month lies inside the period.
  Currency FraisServicesPeriode(const TPeriode& periode) const;
  /// Fees whose month lies inside the period, services or not.
  Currency FraisPeriode(const TPeriode& periode) const;
  /// Fees that are no services, whose month contains the period.
  Currency FraisHorsServicesPeriode(const TPeriode& periode) const;
  /// Paid on lines whose month contains the period.
  Currency VersementsPeriode(const TPeriode& periode) const;
  /// Services and fees that count as services, of the month.
  Currency CoutMois(int mois, int annee) const;
  /// The second half of it.
  Currency FraisMois(int mois, int annee) const;
  /// The last payment of the services of that month of the year.
  Currency PaiementsMois(int mois) const;
  /// What is left to pay of the month; exactly 0 when it is settled.
  Currency SoldeMois(int mois, int annee) const;
  Currency CoutAnnee() const;
  /// Fees of the year that are no services.
  Currency FraisAnnee() const;
  /// Paid on all lines, free payments included.
  Currency FraisPayes() const;
  /// All payments of months.
  Currency PaiementsAnnee() const;
  /// Free payments of services, and of fees.
  Currency VersementsServices() const;
  Currency VersementsFrais() const;
  /// The free payments of a family, in the order of the lines.
  std::vector<TFraisEleve*> VersementsLibres(TTypeFamilleFrais famille) const;
  /// Positive when the family has paid more than it owes for the year.
  Currency Solde(bool avecFrais, bool avecServices) const;
  /// The same for one month, whatever the way of paying. Mind the order of the two flags.
  Currency SoldeCourant(int mois, int annee, bool avecServices, bool avecFrais) const;
  /// What Solde says of the services, for who has computed what they cost in the year.
  Currency SoldeServices(Currency services) const;

  TEleves* Eleves = nullptr;  ///< the collection it belongs to
  QString Nom;
  QString Prenom;
  QString Matricule;          ///< with the dashes of the school register
  TClasse* Classe = nullptr;  ///< in the year loaded; null for one that has been added since
  QString CodeClasse;         ///< "M1", "P3", "PROFESSEURS"
  QString SousClasse;
  QString CodeImplantation;
  TDateTime DateNaissance = 0.0;
  QString NomResponsable;
  QString PrenomResponsable;
  QString Adresse;
  QString Numero;
  int CodePostal = 0;
  QString Localite;
  QString NumCompte;  ///< account for the reimbursement of a positive balance
  QString NomTitulaireCompte;
  QString NomResponsable2;
  QString PrenomResponsable2;
  QString Adresse2;
  QString Numero2;
  int CodePostal2 = 0;
  QString Localite2;
  bool Flg2eEnfant = false;  ///< pays the price of a second child
  bool Flg3eEnfant = false;  ///< day-care and study are free
  bool FlgFactureDetail = false;
  bool FlgDomiciliation = false;
  bool FlgParentSepare = false;
  int NumAttestation = 0;         ///< 0 when none was given; see GetNumAttestation
  bool FlgImpotRespons2 = false;  ///< the tax attestation is in the name of the second adult
  bool FlgRadie = false;
  // Of the tax sheet; national numbers are eleven digits, "" when not known.
  QString NumNational;
  QString NumNationalResponsable;
  QString NumNationalResponsable2;
  bool FlgHandicap = false;  ///< a severe one: care counts until a later birthday

 private:
  TDataModule1& Base() const;
  void RefuserTicketsChanges() const;
  void ModifierTickets(const std::function<void(TTickets&)>& changement);
  void EcrireTickets(const std::function<void(TTickets&)>& changement);
  bool EcrireCommande(TCommande& commande, Currency valeurTicket);

  friend class TEleves;  // reads the fees and the tickets of many together
  mutable std::unique_ptr<TAllFraisEleve> allFrais_;
  mutable std::unique_ptr<TTickets> tickets_;
  mutable std::optional<int> soldeTickets_;  ///< of tickets that are not read
  mutable std::optional<QImage> photo_;
};
