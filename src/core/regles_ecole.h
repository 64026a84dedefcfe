#pragma once
#include <QString>
#include <array>

#include "core/currency.h"

class TParametres;

/// What an activity takes off the day-care that it is held in. The numbers are those of the setting.
enum class TModeDeduction : int {
  Minutes = 0,           ///< 0.025 a minute, half of it for a second child
  UnEuro = 1,            ///< 1.00 off what is above 1.00
  DeuxEuroQuarante = 2,  ///< 2.40 off what is above 1.00
  QuartsHeure = 3        ///< 0.20 a started quarter of an hour, for every child
};

/// The period of outside activities in force.
enum class TTypeActivitesExt : int { Aucune = 0, DepuisSeptembre = 1, DepuisOctobre = 2 };
/// From the text of the setting: "1", "2", or anything else for none.
TTypeActivitesExt LireTypeActivitesExt(const QString& parametre);

/// The rules of the school that amounts and documents follow, as its settings say.
struct TReglesEcole {
  // Of prices.
  bool GarderieUnique = false;          ///< day flat rate of the day-care
  bool DeductionEtude = false;          ///< the evening day-care starts after the study
  std::array<Currency, 4> PrixRepas{};  ///< of categories 1 nursery, 2 primary, 3 staff; 0 is of none
  TModeDeduction ModeDeduction{};       ///< an unknown number takes nothing off
  TTypeActivitesExt ActivitesExt{};
  bool ModeProvision = false;

  // Of documents.
  bool SansServices = false;        ///< no services on the statement of actual fees
  bool DatePaiement = false;        ///< invoices ask for a date of payment
  bool BalanceAnnuelle = false;     ///< arrears of the year instead of reminders
  bool SoirEtEtudes = false;        ///< the evening service is called after the study too
  bool CompteCourant = false;       ///< running account, compact communication
  bool CommunicationRepas = false;  ///< kind 3 of the communication
  bool FactureDebiteurs = false;    ///< running account: kind 0, only who owes gets an invoice
  bool SignatureASBL = false;       ///< of the tax attestation
  bool SansActivitesMois = false;   ///< running account without its second section
  bool AnneeDeSelection = false;    ///< the year of a communication is that of the screen
  bool PlusieursImplantations = false;
  bool QrReference = false;  ///< payment codes hold the twelve digits as a reference, not as a text

  /// How the evening service is called.
  QString TitreGarderieSoir() const;
};

/// Raises EConvertError, which names the setting that is not the number it must be.
TReglesEcole LireReglesEcole(const TParametres& parametres);
/// What holds as soon as it is written: the day flat rate, each price of a meal that converts, and the rules
/// of documents. The others wait for the next year load.
void SuivreReglesEcole(const TParametres& parametres, TReglesEcole& regles);
