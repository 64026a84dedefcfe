#pragma once

/// The settings of the school, by the number of their row in PARAMETRE. A number that is not named here
/// still reads and writes, as a text.
enum class TParam : int {
  NomEcole = 1,
  RueEcole = 2,
  CodePostalEcole = 3,
  LocaliteEcole = 4,
  TelephoneEcole = 5,
  DispositionRegistre = 6,  ///< "2": the second layout of the register's file
  NomImplantation = 9,
  CommunicationFacture = 10,
  CompteBanque = 11,
  HeureDebutLMJV = 12,  ///< of lessons on Monday, Tuesday, Thursday and Friday
  MinuteDebutLMJV = 13,
  HeureFinLMJV = 14,
  MinuteFinLMJV = 15,
  HeureDebutMercredi = 16,
  MinuteDebutMercredi = 17,
  HeureFinMercredi = 18,
  MinuteFinMercredi = 19,
  EmailEcole = 20,
  NomDirection = 21,
  PrenomDirection = 22,
  TitreDirection = 23,
  SansServices = 24,  ///< no services on the statement of actual fees
  ModeProvision = 25,
  CommunicationFraisEffectifs = 26,
  AnneeScolaire = 27,  ///< the working year
  TypeCodeBarre = 28,  ///< "1" Codabar, "2" Code39
  GarderieUnique = 30,
  CodeEtablissement = 31,  ///< the one site that the register import keeps
  DatePaiement = 32,
  ServeurFTP = 33,
  UserFTP = 34,
  MdpFTP = 35,
  ImportDirect = 36,  ///< the attendance screen imports from the scanner as soon as it shows
  CalculAttestation = 40,
  ModuleRepas = 41,
  BalanceAnnuelle = 42,
  VirementNom = 50,  ///< 50 to 55: the beneficiary of the transfer form
  VirementIBAN = 51,
  VirementBIC = 52,
  VirementRue = 53,
  VirementCodePostal = 54,
  VirementLocalite = 55,
  ProvisionGarderie = 56,
  ProvisionFrais = 57,
  TypeCompteBancaire = 58,  ///< "" or "1" Belfius, "2" ING
  ActivitesExt = 100,
  RepasMaternel = 101,
  RepasPrimaire = 102,
  TitreSoirEtudes = 103,  ///< the evening service is called after the study too
  MaximumParJour = 104,   ///< how the O.N.E. documents count the children
  ModeDeduction = 105,
  RepasPersonnel = 106,
  CompteCourant = 107,       ///< compact communication, running account
  CommunicationRepas = 108,  ///< kind 3 of the communication
  DeductionEtude = 109,      ///< the evening day-care starts after the study
  FactureDebiteurs = 110,    ///< running account: kind 0, and only who owes gets an invoice
  SignatureASBL = 111,       ///< of the tax attestation
  SansActivitesMois = 112,   ///< running account without its second section
  PlusieursImplantations = 113,
  AnneeDeSelection = 114,  ///< the year of a communication is that of the screen
  DatePhoto = 115,         ///< stamp of the latest change of a photo
  QrReference = 116,       ///< a payment code holds the twelve digits as a reference, not as a text
  NumeroEntreprise = 117,  ///< of the school, on the tax sheets
};

/// What the text of a setting holds, and so how it is read and edited.
enum class TGenreParam {
  Texte,
  Lignes,   ///< text of several lines
  Entier,   ///< decimal whole number
  Montant,  ///< decimal text with a comma
  OuiNon,   ///< "1" is true, anything else false
  Secret    ///< text that is never shown
};

struct TReglesParam {
  TParam Param;
  TGenreParam Genre = TGenreParam::Texte;
  /// What a number or an amount is when the text is empty; null: reading it then fails.
  const char16_t* Defaut = nullptr;
};

/// A number that is not named has the rules of a text.
TReglesParam Regles(TParam param);
