#include "ui/principal/programme.h"

namespace {

/// Until there is a preview window.
class TSansApercu : public IApercu {
 public:
  explicit TSansApercu(IDialogues& dialogues) : dialogues_(dialogues) {}
  void Afficher(TRapport&) override {
    dialogues_.Information(QStringLiteral("L'aperçu n'est pas encore disponible dans cette version."));
  }

 private:
  IDialogues& dialogues_;
};

}  // namespace

Programme::Programme(const THorloge& horloge)
    : Apercu(std::make_unique<TSansApercu>(Dialogues)),
      Main(Base, Reglages, horloge, Modale, *Apercu),
      Assistant(Main.Contexte),
      Fenetre(Main, Dialogues) {
  Main.Contexte.Assistant = &Assistant;
}
