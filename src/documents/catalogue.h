#pragma once
#include <span>

#include "documents/contexte.h"
#include "documents/resultat.h"

class TClasse;

/// Which screen offers a title.
enum class TListeTitres {
  Eleves,
  Tickets,
  Cuisine,
  Aucune  ///< its screen prints it without asking
};

/// A document that the user can ask for.
struct TTitreDocument {
  const char16_t* Titre;
  /// What there is to say of an empty document is the builder's to say.
  TResultat (*Construire)(const TContexteDocument&, const TDemandeDocument&);
  bool AvecPeriode = false;  ///< the user chooses a period
  bool AvecEleves = true;    ///< the user chooses pupils or classes
  bool Courriel = false;     ///< the command for mail offers it too
  /// Whether the user has to be asked for a payment date before it; null: never.
  bool (*DemandeDate)(const TParametres&) = nullptr;
  /// What may be missing on this workstation; null: nothing.
  QString (*Empechement)(const TEtiquettes&) = nullptr;
  TListeTitres Liste = TListeTitres::Eleves;
  bool ParAnneeRevenus = false;  ///< the user chooses a year of income (fiche_fiscale.h)
};

/// Why that document cannot be made here, with these labels; "" when it can.
QString Empechement(const TTitreDocument& titre, const TEtiquettes& etiquettes);

/// A title as it stands before the user, and what is made when it is chosen.
struct TTitreOffert {
  const TTitreDocument* Montre;
  const TTitreDocument* Fait;
};

/// What the print wizard gives back.
struct TChoixDocument {
  int Indice = 0;  ///< of the title in the list that was offered, from 0
  TElevesChoisis Eleves;
  std::vector<const TClasse*> Classes;
  TDateTime DateDebut = 0.0;
  TDateTime DateFin = 0.0;
  std::optional<TDateTime> DatePaiement;  ///< what the user answered; none when not asked or given up
  TDateTime Jour = 0.0;                   ///< the day at work of a document about meals
  bool NouveauxRepas = false;             ///< in the words of the second generation of meal screens
  int AnneeRevenus = 0;                   ///< 0: the usual one
  bool TouteLEcole = false;               ///< every pupil, or every class, was chosen
};

/// The titles of that screen, in order.
std::vector<TTitreOffert> TitresOfferts(TListeTitres liste);
/// The titles that the command for mail offers. They are served by the whole list, so that the first of
/// them gives the document of its first.
std::vector<TTitreOffert> TitresCourriel();
/// The document of exactly that title; null when there is none.
const TTitreDocument* TrouverTitre(QStringView titre);

/// Whether the user has to be asked for a payment date before that document.
bool DemandeDatePaiement(const TTitreDocument& titre, const TParametres& parametres);
/// The chosen pupils in order, then for each chosen class its pupils in the order of `Eleves`. A pupil
/// chosen twice stands there twice.
TElevesChoisis ElevesDuChoix(const TEleves& eleves, const TChoixDocument& choix);
/// Makes that document for the pupils and the days of the choice.
TResultat FaireDocument(const TContexteDocument& contexte, const TTitreDocument& titre,
                        const TChoixDocument& choix);
