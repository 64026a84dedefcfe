#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/panneau.h"

namespace {

std::vector<std::string> journal;

class TEcran : public TForm {
 public:
  explicit TEcran(std::string nom) : nom_(std::move(nom)) {}
  ~TEcran() override { journal.push_back(nom_ + " fini"); }
  bool RecevoirMessage(const TMessage& message) override {
    const int* charge = message.En<int>();
    journal.push_back(nom_ + " " + std::to_string(static_cast<int>(message.Code)) +
                      (charge ? "/" + std::to_string(*charge) : ""));
    return message.Code == TCodeMessage::Imprimer;
  }
  bool RefuseDeFermer = false;
  bool Echoue = false;

 protected:
  void FormShow() override {
    if (Echoue) throw std::runtime_error("base");
    journal.push_back(nom_ + " montre" + (Cle() ? " " + std::to_string(*Cle()) : "") +
                      (Conteneur() ? "" : " seul"));
  }
  void FormClose() override { journal.push_back(nom_ + " ferme"); }
  bool FormCloseQuery() override { return !RefuseDeFermer; }

 private:
  std::string nom_;
};

struct TFiche : TEcran {
  TFiche() : TEcran("fiche") {}
};
struct TListe : TEcran {
  TListe() : TEcran("liste") {}
};
struct TImport : TEcran {
  TImport() : TEcran("import") {}
};
struct TEnPanne : TEcran {
  TEnPanne() : TEcran("panne") { Echoue = true; }
};

using Journal = std::vector<std::string>;

class Panneau : public testing::Test {
 protected:
  void SetUp() override {
    journal.clear();
    lien = panneau.SurEtape.Suivre([this](TForm& form, TEtapeForm etape) {
      EXPECT_TRUE(etape != TEtapeForm::Affichee || panneau.Courante() == &form);
      EXPECT_TRUE(etape != TEtapeForm::Cachee || !form.EstMontree());
      etapes.push_back(etape);
    });
  }
  template <class T>
  T* Ouvre(std::optional<int> cle = {}, TRemplacement remplacement = TRemplacement::Libere) {
    journal.clear();
    etapes.clear();
    return OuvrirDansPanneau<T>(panneau, cle, remplacement);
  }
  std::vector<TEtapeForm> etapes;
  TPanneau panneau;
  TLien lien;
};

}  // namespace

TEST_F(Panneau, UneAutreClasseFermeEtLibere) {
  Ouvre<TListe>();
  EXPECT_EQ(journal, Journal{"liste montre"});
  TImport* import = Ouvre<TImport>(4);
  EXPECT_EQ(journal, (Journal{"liste ferme", "liste fini", "import montre 4"}));
  EXPECT_EQ(etapes, (std::vector{TEtapeForm::Liberee, TEtapeForm::Affichee}));
  EXPECT_EQ(panneau.Courante(), import);
  EXPECT_EQ(import->Conteneur(), &panneau);
}

TEST_F(Panneau, LaMemeClasseRevientDevantEtRienDAutre) {
  TFiche* fiche = Ouvre<TFiche>(1, TRemplacement::Cache);
  TListe* liste = Ouvre<TListe>();
  EXPECT_EQ(journal, Journal{"liste montre"});
  EXPECT_FALSE(fiche->EstMontree());
  EXPECT_EQ(etapes, (std::vector{TEtapeForm::Cachee, TEtapeForm::Affichee}));

  EXPECT_EQ(Ouvre<TFiche>(2), fiche);
  EXPECT_EQ(journal, Journal{"fiche montre 1"});  // neither the new key nor a second form
  EXPECT_EQ(panneau.Courante(), fiche);
  EXPECT_EQ(panneau.Trouver(typeid(TListe)), liste);

  EXPECT_EQ(Ouvre<TListe>(), liste);  // it only stood behind
  EXPECT_EQ(journal, Journal{});
  EXPECT_EQ(panneau.Courante(), liste);

  Ouvre<TImport>();
  EXPECT_EQ(journal, (Journal{"liste ferme", "liste fini", "import montre"}));
  EXPECT_FALSE(fiche->EstMontree());
}

TEST_F(Panneau, LaMemeFicheResteEnPlace) {
  TListe* liste = Ouvre<TListe>(7);
  TImport* import = Ouvre<TImport>(7);
  EXPECT_EQ(journal, Journal{"import montre 7"});
  EXPECT_EQ(panneau.Courante(), import);
  EXPECT_TRUE(liste->EstMontree());
  Ouvre<TFiche>();  // no key is no record
  EXPECT_EQ(journal, (Journal{"liste ferme", "liste fini", "import ferme", "import fini", "fiche montre"}));
}

TEST_F(Panneau, UnRefusGardeTout) {
  TFiche* fiche = Ouvre<TFiche>({}, TRemplacement::Cache);
  TImport* import = Ouvre<TImport>();
  import->RefuseDeFermer = true;
  Ouvre<TFiche>();
  EXPECT_EQ(Ouvre<TListe>(), nullptr);
  EXPECT_EQ(journal, Journal{});
  EXPECT_EQ(panneau.Courante(), import);
  EXPECT_TRUE(fiche->EstMontree());
}

TEST_F(Panneau, UnEcranQuiNeSeRemplitPasNeSOuvrePas) {
  EXPECT_THROW(Ouvre<TEnPanne>(), std::runtime_error);
  EXPECT_EQ(journal, Journal{"panne fini"});
  EXPECT_EQ(panneau.Courante(), nullptr);
  EXPECT_TRUE(etapes.empty());
}

TEST_F(Panneau, ViderLibereToutSansFermer) {
  Ouvre<TFiche>({}, TRemplacement::Cache);
  Ouvre<TListe>();
  journal.clear();
  panneau.Vider();
  EXPECT_EQ(journal, (Journal{"liste fini", "fiche fini"}));
  EXPECT_EQ(panneau.Courante(), nullptr);
}

TEST(Diffuser, LaFormePuisChaqueComposant) {
  TEcran forme("forme"), cadre("cadre"), autre("autre");
  forme.AjouterComposant(cadre);
  forme.AjouterComposant(autre);
  journal.clear();
  EXPECT_TRUE(Diffuser(TCodeMessage::Imprimer, forme));
  EXPECT_EQ(journal, (Journal{"forme 6032", "cadre 6032", "autre 6032"}));

  forme.RetirerComposant(cadre);
  journal.clear();
  EXPECT_FALSE(Diffuser(TCodeMessage::EleveChange, forme, 12));
  EXPECT_EQ(journal, (Journal{"forme 6029/12", "autre 6029/12"}));
}

TEST(Diffuser, UnComposantRetireEnRouteNeRecoitRien) {
  struct TRetire : TComposant {
    TForm* Forme = nullptr;
    TComposant* Cible = nullptr;
    bool RecevoirMessage(const TMessage&) override {
      Forme->RetirerComposant(*Cible);
      return false;
    }
  };
  TEcran forme("forme"), cible("cible");
  TRetire retire;
  retire.Forme = &forme;
  retire.Cible = &cible;
  forme.AjouterComposant(retire);
  forme.AjouterComposant(cible);
  journal.clear();
  EXPECT_FALSE(Diffuser(TCodeMessage::Courriel, forme));
  EXPECT_EQ(journal, Journal{"forme 6037"});
}
