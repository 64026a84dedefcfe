#pragma once
#include <memory>

#include "report/template/modele.h"

class TReglagesPoste;

/// Where the workstation keeps templates that go before those of the program: `modeles` in the folder of
/// presences. It need not exist.
QString DossierModeles(const TReglagesPoste& reglages);

/// The template of a document: that of the workstation's folder ("" for none), or the one that the
/// program holds; null when there is none of that name yet. Raises Exception for one that cannot be read.
std::shared_ptr<const TModele> ModeleDocument(const QString& nom, const QString& dossier = {});
