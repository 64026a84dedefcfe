#include "documents/contexte.h"

#include "application/globals.h"

TContexteDocument ContexteDesGlobals() { return {*Globals.Eleves, *Globals.Parametres}; }

TElevesChoisis SansRadies(const TElevesChoisis& eleves) {
  TElevesChoisis gardes = eleves;
  if (gardes.size() > 1) std::erase_if(gardes, [](const TEleve* eleve) { return eleve->FlgRadie; });
  return gardes;
}
