#include "documents/demande_provision.h"

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/qr_paiement.h"
#include "documents/recueil_messages.h"
#include "documents/sections.h"
#include "documents/virement.h"
#include "payments/communication_structuree.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// What the settings of the school ask for, the same for every pupil.
struct TProvision {
  explicit TProvision(const TParametres& parametres);

  QString Modele;
  int Genre = 1;
  bool Permanente = false;  ///< one communication for all years
  QString Garderie;         ///< as the office wrote it
  QString Globale;
  std::optional<Currency> Montant;  ///< of the transfer form; none: the parents fill it in
  QStringList Avertissements;

 private:
  void LireMontant();
  int Entier(const QString& texte);
};

TProvision::TProvision(const TParametres& parametres) {
  const bool repas = parametres.Regles().CommunicationRepas;
  Permanente = parametres.Regles().AnneeDeSelection;
  Modele = Permanente ? u"DocumentProvisionUniversel"_s
           : repas    ? u"DocumentProvision"_s
                      : u"DocumentProvisionVESPER"_s;
  if (repas || Permanente) Genre = 3;
  Garderie = parametres.GetParametre(TParam::ProvisionGarderie);
  Globale =
      QString::number(qint64{Entier(Garderie)} + Entier(parametres.GetParametre(TParam::ProvisionFrais)));
  if (repas || !parametres.Regles().CompteCourant) LireMontant();
}

void TProvision::LireMontant() {
  try {
    const Currency lu = StrToCurr(Garderie);
    if (lu >= Currency() && TientDansVirement(lu)) Montant = lu;
  } catch (const EConvertError&) {
  }
  if (!Montant)
    Avertissements +=
        u"La provision « %1 » n'est pas un montant qui tient dans ses cases : l'ordre de virement reste sans montant."_s
            .arg(Garderie);
}

/// A text that is no whole number counts for nothing in the sum.
int TProvision::Entier(const QString& texte) {
  constexpr int kAucun = std::numeric_limits<int>::min();
  const int valeur = StrToIntDef(texte, kAucun);
  if (valeur != kAucun) return valeur;
  if (!texte.isEmpty())
    Avertissements +=
        u"La provision « %1 » n'est pas un nombre entier : elle compte pour 0 dans la provision globale."_s
            .arg(texte);
  return 0;
}

TNoeudRapport Demander(const TProvision& provision, const TQrPaiement& qr, const TEleve& eleve, int annee,
                       IDialogues& dialogues) {
  const QString communication =
      CommunicationCompacte(dialogues, eleve.Id, provision.Genre, annee, provision.Permanente);
  TNoeudRapport noeud = NoeudEleve(eleve);
  noeud.Valeurs.Ecrire(u"Matricule", eleve.Matricule);
  noeud.Valeurs.Ecrire(u"ProvisionGarderie", provision.Garderie);
  noeud.Valeurs.Ecrire(u"ProvisionGlobale", provision.Globale);
  noeud.Valeurs.Ecrire(u"CommunicationEleve", communication);
  RemplirVirement(noeud, communication, provision.Montant);
  qr.Ajouter(noeud, communication, provision.Montant.value_or(Currency()));
  return noeud;
}

}  // namespace

TResultat DemandeProvision(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  const TProvision provision(contexte.Parametres);
  TRapport lettre =
      LettreEcole(u"Document de demande de provision"_s, provision.Modele, contexte.Parametres, {});
  lettre.Avertissements = provision.Avertissements;
  RemplirBeneficiaire(lettre, contexte.Parametres);
  const TQrPaiement qr(contexte.Parametres);
  qr.Avertir(lettre);
  lettre.AjouterVariable(u"DateJour", FormatDate(contexte.Aujourdhui));

  TRecueilMessages recueil;
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(demande.Eleves))
    arbre.push_back(Demander(provision, qr, *eleve, demande.Periode.Annee, recueil));
  TResultat resultat;
  resultat.Messages = recueil.Messages;
  resultat.Ajouter(Presenter(std::move(lettre), std::move(arbre), TexteRienAImprimer()));
  return resultat;
}
