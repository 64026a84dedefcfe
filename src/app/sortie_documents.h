#pragma once
#include "app/commandes.h"
#include "documents/resultat.h"
#include "report/layout/document_prepare.h"

/// Raises Exception when one file would take the place of another: of --pdf, --json, --export, or the
/// database itself. A device takes them all.
void VerifierFichiers(const TSession& session);
/// Says the messages, and writes what --json and --pdf ask for; gives the exit code. `parClasses`: the
/// pupils were chosen by class. `prets`: pages that are laid out already. Raises Exception.
int SortirDocument(TSession& session, const QString& titre, const TResultat& resultat,
                   bool parClasses = false, const TDocumentPrepare& prets = {});
