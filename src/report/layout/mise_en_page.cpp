#include "report/layout/mise_en_page.h"

#include "report/layout/moteur.h"

TMiseEnPage::TMiseEnPage(const TRapport& rapport, const TModele& modele, const TImpression& impression)
    : contexte_(rapport, modele, impression, document_.Defauts),
      moteur_(std::make_unique<TMoteur>(contexte_, document_)) {
  document_.Titre = rapport.Intitule();
  for (const QString& avertissement : rapport.Avertissements)
    document_.Defauts.push_back({{}, {}, avertissement});
  for (const QString& manque : TPolices::Communes().Manques()) document_.Defauts.push_back({{}, {}, manque});
}

TMiseEnPage::~TMiseEnPage() = default;

bool TMiseEnPage::Continuer() { return moteur_->Continuer(); }

TDocumentPrepare MettreEnPage(const TRapport& rapport, const TModele& modele, const TImpression& impression) {
  TMiseEnPage miseEnPage(rapport, modele, impression);
  while (miseEnPage.Continuer()) {
  }
  return miseEnPage.Prendre();
}
