#pragma once
#include <vector>

#include "report/layout/document_prepare.h"

/// All documents in one PDF 1.7 file: text that can be found and copied, fonts embedded as far as they
/// are used, bookmarks (under the titles when there are several documents). The same documents always
/// give the same octets. Raises Exception when there is no page at all.
QByteArray PdfEnOctets(const std::vector<const TDocumentPrepare*>& documents, const QString& titre,
                       const QString& auteur);

/// The same in a file, written beside its target and renamed. Raises Exception.
void EcrirePdf(const std::vector<const TDocumentPrepare*>& documents, const QString& titre,
               const QString& auteur, const QString& chemin);
