#include "screens/documents/recherche_document.h"

#include <algorithm>

void TRechercheDocument::Commencer(const QString& texte) {
  *this = {};
  texte_ = texte.trimmed();
}

void TRechercheDocument::Avancer(const TDocumentPrepare& document, int pages) {
  if (texte_.isEmpty() || pages <= pages_) return;
  const auto nouvelles = document.Chercher(texte_, pages_, pages);
  trouvailles_.insert(trouvailles_.end(), nouvelles.begin(), nouvelles.end());
  pages_ = pages;
}

const TTrouvaille* TRechercheDocument::Choisir(int page) {
  const auto ici = std::ranges::lower_bound(trouvailles_, page, {}, &TTrouvaille::Page);
  courante_ = trouvailles_.empty()        ? -1
              : ici == trouvailles_.end() ? 0
                                          : static_cast<int>(ici - trouvailles_.begin());
  return Trouvaille();
}

const TTrouvaille* TRechercheDocument::Suivante(int sens) {
  const int nombre = static_cast<int>(trouvailles_.size());
  if (nombre > 0) courante_ = (courante_ + sens + nombre) % nombre;
  return Trouvaille();
}

const TTrouvaille* TRechercheDocument::Trouvaille() const {
  return courante_ < 0 ? nullptr : &trouvailles_[static_cast<std::size_t>(courante_)];
}
