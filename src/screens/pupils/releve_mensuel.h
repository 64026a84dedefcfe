#pragma once
#include "core/calendrier_scolaire.h"
#include "core/currency.h"
#include "forms/grille.h"
#include "pupils/service.h"

class TEleve;

/// "Relevé mensuel des services": for each service, in order, a head and a row for each
/// record charged. The object of a row is its TPresence; a service without records is not listed.
class TReleveMensuel {
 public:
  enum TColonne { Categorie, Date, Entree, Sortie, ColonneMontant };

  TReleveMensuel();
  TReleveMensuel(const TReleveMensuel&) = delete;
  TReleveMensuel& operator=(const TReleveMensuel&) = delete;

  /// Day-care and study are listed at 0.00 for a pupil who has them for nothing.
  void Remplir(const TEleve& eleve, const TPeriode& mois);
  void Vider();

  TGrille Grille;
  Currency Total;

 private:
  void AjouterService(const TEleve& eleve, const TPeriode& mois, TService service);
};
