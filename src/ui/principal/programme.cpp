#include "ui/principal/programme.h"

#include "ui/documents/apercu_qt.h"
#include "ui/documents/etiquettes_qt.h"

Programme::Programme(const THorloge& horloge)
    : Apercu(std::make_unique<ApercuQt>(TContexteApercu{Dialogues, Reglages, horloge}, Modale)),
      Main(Base, Reglages, horloge, Modale, *Apercu),
      Assistant(Main.Contexte),
      Fenetre(Main, Dialogues) {
  Main.Contexte.Assistant = &Assistant;
  Main.Contexte.Lecteur = Lecteur.get();
  Main.Contexte.Etiquettes = PosteEtiquettes(Dialogues);
}
