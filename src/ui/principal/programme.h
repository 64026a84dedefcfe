#pragma once
#include "core/horloge.h"
#include "screens/documents/frm_print_wizard.h"
#include "screens/principal/frm_main.h"
#include "ui/principal/dialogues_qt.h"
#include "ui/principal/fenetre_modale_qt.h"
#include "ui/principal/fenetre_principale.h"
#include "workflows/lien_lecteur.h"

/// The whole desktop program, made in the order in which it starts and freed in the reverse one.
class Programme {
 public:
  /// Nothing is connected yet: see FenetrePrincipale::Demarrer. The clock must outlive it.
  explicit Programme(const THorloge& horloge);

  DialoguesQt Dialogues;
  TReglagesPoste Reglages;
  TDataModule1 Base{Dialogues, Reglages};
  FenetreModaleQt Modale;
  std::unique_ptr<IApercu> Apercu;
  std::unique_ptr<ILienLecteur> Lecteur = LienDuPoste(Reglages);
  TFrmMain Main;
  TFrmPrintWizard Assistant;
  FenetrePrincipale Fenetre;
};
