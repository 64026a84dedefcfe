#include "payments/communication_structuree.h"
#include "support/dialogues_scenario.h"

TEST(CommunicationStructuree, Generateurs) {
  TDialoguesScenario dialogues;
  EXPECT_EQ(CommunicationServices(dialogues, 123, 10, 2016), u"+++001/2310/16185+++");
  EXPECT_EQ(CommunicationServices(dialogues, 10, 10, 2016), u"+++000/1010/16103+++");  // remainder 3
  EXPECT_EQ(CommunicationServices(dialogues, 20, 9, 2016), u"+++000/2009/16197+++");   // remainder 0
  EXPECT_EQ(CommunicationFrais(dialogues, 42, 1, 2017), u"+++000/4201/17205+++");
  EXPECT_EQ(CommunicationCompacte(dialogues, 42, 3, 2016, false), u"+++300/0042/01620+++");
  EXPECT_EQ(CommunicationCompacte(dialogues, 99999, 0, 2016, true), u"+++009/9999/00051+++");
}

TEST(CommunicationStructuree, IdentifiantTropGrand) {
  TDialoguesScenario dialogues;
  for (int i = 0; i < 3; ++i)
    dialogues.Attend("L'identifiant élève est trop grand pour générer une communication structurée !");
  EXPECT_EQ(CommunicationServices(dialogues, 100000, 1, 2016), QString());
  EXPECT_EQ(CommunicationFrais(dialogues, 100000, 1, 2016), QString());
  EXPECT_EQ(CommunicationCompacte(dialogues, 100000, 1, 2016, false), QString());
}

TEST(CommunicationStructuree, Controle) {
  const std::pair<const char*, bool> cas[] = {
      {"+++001/2310/16185+++", true},
      {"001231016185", true},
      {"+++000/2009/16197+++", true},
      {"+++000/2009/16100+++", true},  // 97 stands for 0, and 0 is itself
      {"+++001/2310/16184+++", false},
      {"+++001/2310/16182+++", false},  // 82 = 85 - 3
      {"+++001/2310/1618+++", false},
      {"+++0001/2310/16185+++", false},
      {" 01231016185", false},
      {"00123101618a", false},
      {"", false},
  };
  for (const auto& [texte, valide] : cas) EXPECT_EQ(CommunicationValide(texte), valide) << texte;
  EXPECT_FALSE(CommunicationValide("٠٠١٢٣١٠١٦١٨٥"));  // digits, but not 0 to 9
}

TEST(CommunicationStructuree, TexteInterieur) {
  const std::pair<const char*, const char*> cas[] = {
      {"+++001/2310/16185+++", "001/2310/16185"},
      {"+++001/2310/16185+++ merci +++", "001/2310/16185"},
      {"+++001/2310/16185", "001/2310/16185"},
      {"+++001/2310/1618+++", ""},
      {"VIREMENT +++001/2310/16185+++", ""},  // what stands before counts too
      {"A+++01/2310/16185+++", "A01/2310/16185"},
      {"001/2310/16185", ""},
      {"++++++", ""},
      {"", ""},
  };
  for (const auto& [texte, interieur] : cas) EXPECT_EQ(TexteInterieur(texte), interieur) << texte;
}
