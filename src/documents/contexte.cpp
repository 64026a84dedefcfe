#include "documents/contexte.h"

#include "application/globals.h"
#include "core/horloge.h"

TContexteDocument ContexteDesGlobals(const THorloge& horloge) {
  return {*Globals.Eleves, *Globals.Parametres, horloge.Aujourdhui(), Globals.AnneeScolaire};
}

TElevesChoisis SansRadies(const TElevesChoisis& eleves) {
  TElevesChoisis gardes = eleves;
  if (gardes.size() > 1) std::erase_if(gardes, [](const TEleve* eleve) { return eleve->FlgRadie; });
  return gardes;
}
