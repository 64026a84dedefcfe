#pragma once
#include <functional>
#include <span>

#include "core/calendrier_scolaire.h"
#include "documents/contexte.h"
#include "documents/sections.h"
#include "pupils/service.h"

/// The services in the order of an invoice: those of the day, then meals and soups, then study.
inline constexpr std::array kServicesFactures{TService::Matin,    TService::Midi,  TService::Soir,
                                              TService::Mercredi, TService::Repas, TService::Soupe,
                                              TService::Etude};

/// How a service is called on an invoice: "Garderies du matin"; the evening as the school calls it.
QString LibelleFacture(TService service, const QString& titreGarderieSoir);

/// The amount of a line; none when there is no line.
using TMontantService = std::function<std::optional<Currency>(TService)>;

/// A line for each of these services that has an amount.
void AjouterServices(TSection& section, std::span<const TService> services, const QString& titreGarderieSoir,
                     const TMontantService& montant);

/// What a service costs in the period, whatever was paid; none when that is nothing, or when a third
/// child has it for nothing. The pupil must outlive it.
TMontantService CoutsEntiers(const TEleve& eleve, const TPeriode& periode);
