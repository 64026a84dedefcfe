#include "documents/catalogue.h"

#include <stdexcept>

#include "documents/badges.h"
#include "documents/etiquettes.h"
#include "documents/factures.h"
#include "documents/listes_codes_barres.h"
#include "documents/releve_detaille.h"
#include "pupils/eleves.h"

namespace {

enum TIndice {
  kFacture = 6,
  kFraisEffectifs,
  kDetaille,
  kPrevisionnelle,
  kBalanceProvisoire = 11,
  kBalanceDefinitive
};

constexpr TTitreDocument kTitres[] = {
    {u"Etiquettes d'identification 89mm x 36mm (Etiquette Dymo 99012)", false, EtiquettesGrandes},
    {u"Etiquettes d'identification 54mm x 25mm (Etiquette Dymo 11352)", false, EtiquettesPetites},
    {u"Badge individuel d'identification (85mm x 54mm)", false, Badge},
    {u"Badge individuel Xerox DocuCard (1 carte)", false, Xerox},
    {u"Liste d'identification par classe", false, ListeCodesBarres},
    {u"Liste d'identification par classe - grand format", false, ListeCodesBarresLarge},
    {u"Facture", true, Factures},
    {u"Relevé des frais effectifs", true, nullptr},
    {u"Relevé détaillé des services", true, ReleveDetaille},
    {u"Liste prévisionnelle des frais", true, nullptr},
    {u"Detail O.N.E. des accueils extrascolaires", true, nullptr},
    {u"Balance des comptes provisoire", false, nullptr},
    {u"Balance des comptes définitive", false, nullptr},
    {u"Attestation fiscale", false, nullptr},
    {u"Comptabilisation des repas et des soupes", true, nullptr},
    {u"Document de provision de compte", false, nullptr},
};

constexpr TIndice kCourriel[] = {kFacture,        kFraisEffectifs,    kDetaille,
                                 kPrevisionnelle, kBalanceProvisoire, kBalanceDefinitive};

}  // namespace

std::span<const TTitreDocument> TitresDocuments() { return kTitres; }

std::vector<TTitreDocument> TitresCourriel() {
  std::vector<TTitreDocument> titres;
  for (const TIndice indice : kCourriel) titres.push_back(kTitres[indice]);
  return titres;
}

int IndiceTitre(QStringView titre) {
  const auto trouve =
      std::ranges::find(kTitres, titre, [](const TTitreDocument& t) { return QStringView(t.Titre); });
  return trouve == std::end(kTitres) ? -1 : static_cast<int>(trouve - std::begin(kTitres));
}

bool DemandeDatePaiement(int indice, const TParametres& parametres) {
  return indice == kFacture && FactureDemandeDate(parametres);
}

TElevesChoisis ElevesDuChoix(const TEleves& eleves, const TChoixDocument& choix) {
  TElevesChoisis choisis = choix.Eleves;
  for (const TClasse* classe : choix.Classes)
    for (TEleve& eleve : eleves)
      if (eleve.Classe == classe) choisis.push_back(&eleve);
  return choisis;
}

TResultat FaireDocument(const TContexteDocument& contexte, const TChoixDocument& choix) {
  if (choix.Indice < 0 || choix.Indice >= std::ssize(kTitres)) throw std::out_of_range("FaireDocument");
  const TTitreDocument& titre = kTitres[choix.Indice];
  if (!titre.Construire) return PasEncore(QString::fromUtf16(titre.Titre));
  return titre.Construire(contexte, {ElevesDuChoix(contexte.Eleves, choix),
                                     {contexte.Eleves.AnneeScolaire, choix.DateDebut, choix.DateFin},
                                     choix.DatePaiement});
}
