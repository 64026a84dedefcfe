#pragma once
#include "report/rapport.h"
#include "screens/contexte_ecran.h"
#include "support/controleur_essai.h"

/// What a screen is given in a test: it notes what the status bar says and what is previewed, and
/// answers a modal form by what the test wants done with it.
class TEcranEssai : public IFenetreModale, public IApercu, public ILienPrincipal {
 public:
  explicit TEcranEssai(TBaseEssai& base) : Essai(base) { Essai.Charger(); }

  TResultatModal MontrerModal(TForm& form) override {
    form.Montrer();
    if (SurModale) SurModale(form);
    return form.ResultatModal;
  }
  bool Afficher(TRapport& rapport) override {
    Apercus += rapport.Titre();
    return false;
  }
  void Envoyer(const TMessage&) override { ++Envois; }
  void AllerAEcole(const QString& champ) override { ChampEcole = champ; }
  void AllerAEleve(int annee, int eleveId, const QString& champ) override {
    ChampAilleurs = QString::number(annee) % u' ' % QString::number(eleveId) % u' ' % champ;
  }
  void AllerAuTransfert() override {}
  void Etat(TNiveauEtat niveau, const QString& texte) override {
    Niveau = niveau;
    Etats += texte;
  }

  /// What is done in the next modal forms, which are of that class.
  template <class T>
  void Modale(std::function<void(T&)> faire) {
    SurModale = [faire = std::move(faire)](TForm& form) { faire(dynamic_cast<T&>(form)); };
  }

  TControleurEssai Essai;
  std::function<void(TForm&)> SurModale;
  TNiveauEtat Niveau{};
  QStringList Etats;
  QStringList Apercus;
  QString ChampEcole, ChampAilleurs;
  int Envois = 0;
  TContexteEcran Contexte{Essai.Controleur, *this, *this, *this};
};
