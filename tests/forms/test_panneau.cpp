#include <stdexcept>

#include "forms/panneau.h"

namespace {

std::string journal;

/// Notes that it is shown, with its key, that it is closed, that it ends, and its messages.
template <char Nom>
struct TEcran : TForm {
  ~TEcran() override { Noter("fini"); }
  static void Noter(const std::string& fait) {
    journal += std::string(journal.empty() ? "" : " ") + Nom + fait;
  }
  bool RecevoirMessage(const TMessage& message) override {
    const int* charge = message.En<int>();
    Noter(std::to_string(static_cast<int>(message.Code)) + (charge ? "/" + std::to_string(*charge) : ""));
    if (Retire) RetirerComposant(*Retire);
    return message.Code == TCodeMessage::Imprimer;
  }
  void FormShow() override {
    if (Nom == 'x') throw std::runtime_error("base");
    Noter("montre" + (Cle() ? std::to_string(*Cle()) : ""));
  }
  void FormClose() override { Noter("ferme"); }
  bool FormCloseQuery() override { return !RefuseDeFermer; }
  bool RefuseDeFermer = false;
  TComposant* Retire = nullptr;
};

struct Panneau : testing::Test {
  /// Opens the screen of that letter; what happened meanwhile.
  template <char Nom>
  std::string Ouvre(std::optional<int> cle = {}, TRemplacement remplacement = TRemplacement::Libere) {
    journal.clear();
    ouvert = OuvrirDansPanneau<TEcran<Nom>>(panneau, cle, remplacement);
    EXPECT_TRUE(ouvert == nullptr || panneau.Courante() == ouvert);
    return journal;
  }
  TPanneau panneau;
  TForm* ouvert = nullptr;
};

}  // namespace

TEST_F(Panneau, UneAutreClasseFermeOuCache) {
  EXPECT_EQ(Ouvre<'f'>(1, TRemplacement::Cache), "fmontre1");
  TForm* fiche = ouvert;
  EXPECT_EQ(Ouvre<'l'>(), "lmontre");
  TForm* liste = ouvert;
  EXPECT_FALSE(fiche->EstMontree());
  EXPECT_EQ(Ouvre<'f'>(2), "fmontre1") << "neither the new key nor a second form";
  EXPECT_EQ(ouvert, fiche);
  EXPECT_EQ(Ouvre<'l'>(), "") << "it only stood behind";
  EXPECT_EQ(ouvert, liste);
  EXPECT_EQ(Ouvre<'i'>(7), "lferme lfini imontre7");
  EXPECT_FALSE(fiche->EstMontree());
  EXPECT_EQ(Ouvre<'m'>(7), "mmontre7") << "both show the same record";
  EXPECT_EQ(Ouvre<'l'>(), "iferme ifini mferme mfini lmontre") << "no key is no record";
  journal.clear();
  panneau.Vider();
  EXPECT_EQ(journal, "lfini ffini") << "none is closed";
  EXPECT_EQ(panneau.Courante(), nullptr);
}

TEST_F(Panneau, UnRefusGardeToutEtUnEcranEnPanneNeSOuvrePas) {
  EXPECT_THROW(Ouvre<'x'>(), std::runtime_error);
  EXPECT_EQ(journal, "xfini");
  EXPECT_EQ(panneau.Courante(), nullptr);
  Ouvre<'f'>({}, TRemplacement::Cache);
  Ouvre<'i'>();
  dynamic_cast<TEcran<'i'>&>(*ouvert).RefuseDeFermer = true;
  TForm* import = ouvert;
  Ouvre<'f'>();
  EXPECT_EQ(Ouvre<'l'>(), "");
  EXPECT_EQ(ouvert, nullptr);
  EXPECT_EQ(panneau.Courante(), import);
  Ouvre<'f'>();
  EXPECT_FALSE(panneau.AccepteDeFermer()) << "what is unsaved stands behind the record";
  EXPECT_EQ(panneau.Courante(), import);
}

TEST(Diffuser, LaFormePuisChaqueComposantQuIlAEncore) {
  TEcran<'a'> forme;
  TEcran<'b'> cadre;
  TEcran<'c'> autre;
  forme.AjouterComposant(cadre);
  forme.AjouterComposant(autre);
  journal.clear();
  EXPECT_TRUE(Diffuser(TCodeMessage::Imprimer, forme));
  forme.Retire = &cadre;  // on the way: it receives nothing
  EXPECT_FALSE(Diffuser(TCodeMessage::EleveChange, forme, 12));
  EXPECT_EQ(journal, "a6032 b6032 c6032 a6029/12 c6029/12");
}
