#pragma once
#include <span>

#include "documents/contexte.h"
#include "documents/resultat.h"

class TClasse;

/// A document that the pupil screen offers.
struct TTitreDocument {
  const char16_t* Titre;
  bool AvecPeriode;                                                            ///< the user chooses a period
  TResultat (*Construire)(const TContexteDocument&, const TDemandeDocument&);  ///< null: not there yet
};

/// What the print wizard gives back.
struct TChoixDocument {
  int Indice = 0;  ///< of the title in the list that was offered, from 0
  TElevesChoisis Eleves;
  std::vector<const TClasse*> Classes;
  TDateTime DateDebut = 0.0;
  TDateTime DateFin = 0.0;
  std::optional<TDateTime> DatePaiement;  ///< what the user answered; none when not asked or given up
};

/// The sixteen titles, in order.
std::span<const TTitreDocument> TitresDocuments();
/// The six titles that the command for mail offers.
std::vector<TTitreDocument> TitresCourriel();
/// Index in `TitresDocuments` of exactly that title; -1 when there is none.
int IndiceTitre(QStringView titre);

/// Whether the user has to be asked for a payment date before that document.
bool DemandeDatePaiement(int indice, const TParametres& parametres);
/// The chosen pupils in order, then for each chosen class its pupils in the order of `Eleves`. A pupil
/// chosen twice stands there twice.
TElevesChoisis ElevesDuChoix(const TEleves& eleves, const TChoixDocument& choix);
/// Makes the document of that index of `TitresDocuments`, also when the titles for mail were offered:
/// their first one thus gives the first of the sixteen. Raises std::out_of_range for another index.
TResultat FaireDocument(const TContexteDocument& contexte, const TChoixDocument& choix);
