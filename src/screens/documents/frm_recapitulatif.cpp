#include "screens/documents/frm_recapitulatif.h"

#include "attendance/presences.h"
#include "core/accord.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/nom_fichier.h"
#include "pupils/eleves.h"
#include "screens/documents/criteres_recapitulatif.h"
#include "services/liste_frais.h"
#include "workflows/export_balances.h"

using namespace Qt::StringLiterals;

/// What a page is: how it is filled, and what can be done with it; null for what cannot.
struct TFrmRecapitulatif::TDefinition {
  const char16_t* Titre;
  void (TFrmRecapitulatif::*Remplir)();
  TResultat (TFrmRecapitulatif::*Imprimer)(const TContexteDocument&) const;
  QString (TFrmRecapitulatif::*Vide)() const;
  /// Of the accountant's file.
  void (*Exporter)(const std::vector<TMontantEleve>&, const QString&);
  std::vector<TMontantEleve> TFrmRecapitulatif::*Lignes;
};

const TFrmRecapitulatif::TDefinition& TFrmRecapitulatif::DefinitionDe(int page) {
  using T = TFrmRecapitulatif;
  static const TDefinition kPages[] = {
      {u"Liste des impayés", &T::RemplirImpayes, &T::ImprimerImpayes, &T::VideImpayes, ExporterImpayes,
       &T::impayes_},
      {u"Balances positives", &T::RemplirPositives, &T::ImprimerPositives, &T::VidePositives,
       ExporterBalancesPositives, &T::positives_},
      {u"Détail des entrées et sorties", &T::RemplirPassages, nullptr, &T::VidePassages, nullptr, nullptr},
      {u"Relevé annuel", &T::AfficheReleveAnnuel, &T::ImprimerAnnuel, nullptr, nullptr, nullptr},
      {u"Liste des paiements", &T::RemplirPaiements, &T::ImprimerPaiements, &T::VidePaiements, nullptr,
       nullptr},
      {u"Statistiques fiscales", &T::RemplirFiscales, &T::ImprimerFiscales, &T::VideFiscales, nullptr,
       nullptr},
      {u"Statistique Frais", &T::RemplirFrais, &T::ImprimerFrais, &T::VideFrais, nullptr, nullptr},
  };
  return kPages[page];
}

namespace {

/// The month of that day, when it is one of the year; else the whole year.
TPeriode MoisOuAnnee(TDateTime jour, int annee) {
  for (const int mois : kMoisScolaires) {
    const TPeriode bornes = BornesMois(mois, annee);
    if (jour >= bornes.Premier && jour <= bornes.Dernier) return bornes;
  }
  return BornesAnnee(annee);
}

Currency Somme(const std::vector<TMontantEleve>& lignes) {
  Currency somme;
  for (const TMontantEleve& ligne : lignes) somme += ligne.Montant;
  return somme;
}

std::vector<TTotalListe> NombreEtSomme(const std::vector<TMontantEleve>& lignes, const QString& nombre,
                                       const QString& somme) {
  return {{nombre, QString::number(lignes.size())}, {somme, FormatMontant(Somme(lignes))}};
}

QString TexteVide(const TPeriode& periode, const QString& texte) {
  const QString faute = FautePeriode(periode);
  return faute.isEmpty() ? texte : faute;
}

}  // namespace

TFrmRecapitulatif::TFrmRecapitulatif(TContexteEcran& contexte)
    : Impayes(GrilleImpayes()),
      Positives(GrilleBalancesPositives()),
      Annuel(GrilleAnnuelle()),
      Paiements(GrillePaiements()),
      Fiscales(GrilleFiscale()),
      Frais(GrilleFrais()),
      contexte_(contexte),
      champs_(ChampsRecapitulatif(), TChamps::Aussitot),
      remplies_(static_cast<std::size_t>(Titres().size())) {}

QStringList TFrmRecapitulatif::Titres() {
  QStringList titres;
  for (int page = TabImpaye; page <= TabFrais; ++page) titres += QString::fromUtf16(DefinitionDe(page).Titre);
  return titres;
}

void TFrmRecapitulatif::FormShow() {
  const int annee = Globals.Eleves->AnneeScolaire;
  criteres_.Passages = MoisOuAnnee(contexte_.Controleur.Horloge().Aujourdhui(), annee);
  criteres_.Fiscale = BornesAnnee(annee);
  champs_.SurRefus = [this](const TChamp&, const QString& faute) {
    contexte_.Principal.Etat(TNiveauEtat::Erreur, faute);
  };
  champs_.SurEnregistrer = [this](const TChamp&) { Remplir(page_); };
  champs_.Montrer(&criteres_);
  ChoisirPage(TabImpaye);
}

void TFrmRecapitulatif::ChoisirPage(int page) {
  champs_.QuitterTout();
  page_ = page;
  if (!remplies_[static_cast<std::size_t>(page)]) Remplir(page);
  Annoncer();
  SurCommandes();
}

// Filling

void TFrmRecapitulatif::Remplir(int page) {
  const TAttente attente(contexte_.Dialogues());
  (this->*DefinitionDe(page).Remplir)();
  remplies_[static_cast<std::size_t>(page)] = true;
  Annoncer();
}

void TFrmRecapitulatif::RemplirImpayes() {
  impayes_ = ::Impayes(*Globals.Eleves, criteres_.Impayes);
  const TGrille::TLot lot(Impayes);
  ::Remplir(Impayes, impayes_);
  Impayes.CocherTout(true);
}

void TFrmRecapitulatif::RemplirPositives() {
  positives_ = BalancesPositives(*Globals.Eleves, criteres_.FraisPositifs, criteres_.ServicesPositifs);
  const TGrille::TLot lot(Positives);
  RemplirAvecCompte(Positives, positives_);
  Positives.CocherTout(true);
}

void TFrmRecapitulatif::RemplirPassages() {
  etendu_ = false;
  presents_ = ElevesPresents(*Globals.Eleves, criteres_.Passages);
  SurPassages();
}

void TFrmRecapitulatif::AfficheReleveAnnuel() {
  annuel_ = ::ReleveAnnuel();
  ::Remplir(Annuel, annuel_);
}

void TFrmRecapitulatif::RemplirPaiements() {
  TGroupeFrais* groupe = Groupe();
  paiements_ =
      groupe != nullptr ? PaiementsDuGroupe(*Globals.Eleves, *groupe) : std::vector<TPaiementsEleve>();
  ::Remplir(Paiements, paiements_);
}

void TFrmRecapitulatif::RemplirFiscales() {
  fiscales_ = StatistiquesFiscales(*Globals.Eleves, criteres_.Fiscale);
  ::Remplir(Fiscales, fiscales_);
}

void TFrmRecapitulatif::RemplirFrais() {
  frais_ = StatistiqueFrais(*Globals.ListeFrais);
  ::Remplir(Frais, frais_);
}

TGroupeFrais* TFrmRecapitulatif::Groupe() const {
  std::vector<TLibelleGroupe> libelles;
  Globals.GroupesFrais->LibellesGroupes(libelles);
  const auto indice = static_cast<std::size_t>(criteres_.Groupe);
  return criteres_.Groupe >= 0 && indice < libelles.size() ? libelles[indice].Groupe : nullptr;
}

std::vector<std::pair<QString, Currency>> TFrmRecapitulatif::Mois() const {
  std::vector<std::pair<QString, Currency>> mois;
  for (const auto& [numero, montant] : annuel_.Mois) mois.emplace_back(NomMois(numero), montant);
  return mois;
}

std::vector<QStringList> TFrmRecapitulatif::Passages(const TEleve& eleve) const {
  std::vector<QStringList> lignes;
  for (const TPresence* presence : Globals.Presences->PresencesEleve(eleve.Id, criteres_.Passages))
    lignes.push_back({FormatDate(presence->DateReleve), Texte(presence->TypePresence),
                      FormatHeureCourte(presence->HeureEntree), FormatHeureCourte(presence->HeureSortie)});
  return lignes;
}

QString TFrmRecapitulatif::TexteCollapseTree() const {
  return etendu_ ? u"Réduire l'arborescence"_s : u"Etendre l'arborescence"_s;
}

void TFrmRecapitulatif::btnCollapseTreeClick() {
  const TAttente attente(contexte_.Dialogues());
  etendu_ = !etendu_;
  Annoncer();
}

// Below the lists

std::vector<TTotalListe> TFrmRecapitulatif::Totaux(int page) const {
  if (page == TabImpaye)
    return NombreEtSomme(impayes_, u"Elèves non en ordre de paiement:"_s, u"Montant total des impayés :"_s);
  if (page == TabBalancePositive)
    return NombreEtSomme(positives_, u"Elèves à rembourser:"_s, u"Montant total à rembourser :"_s);
  if (page != TabFrais) return {};
  Currency total;
  for (const TLigneFrais& ligne : Coches()) total += ligne.Total;
  return {{u"Coût total des frais sélectionnés : "_s, FormatMontant(total)}};
}

std::vector<TLigneFrais> TFrmRecapitulatif::Coches() const {
  std::vector<TLigneFrais> coches = frais_;
  std::erase_if(coches, [this](const TLigneFrais& ligne) {
    const int rang = Frais.TrouverObjet(ligne.Frais);
    return rang < 0 || !Frais.Ligne(rang).Coche;
  });
  return coches;
}

QString TFrmRecapitulatif::Vide(int page) const {
  const auto vide = DefinitionDe(page).Vide;
  return vide != nullptr ? (this->*vide)() : QString();
}

QString TFrmRecapitulatif::VideImpayes() const {
  if (!impayes_.empty()) return {};
  const TCriteresImpayes& criteres = criteres_.Impayes;
  if (!criteres.Frais && !criteres.Services) return u"Cochez les frais, les services, ou les deux."_s;
  if (criteres.Etendue != TEtendue::Annee && criteres.Mois == 0) return u"Choisissez un mois."_s;
  return u"Tous les élèves sont en ordre de paiement."_s;
}

QString TFrmRecapitulatif::VidePositives() const {
  if (!positives_.empty()) return {};
  if (!criteres_.FraisPositifs && !criteres_.ServicesPositifs)
    return u"Cochez les frais, les services, ou les deux."_s;
  return u"Aucun élève n'est à rembourser."_s;
}

QString TFrmRecapitulatif::VidePassages() const {
  return presents_.empty() ? TexteVide(criteres_.Passages, u"Aucun passage entre ces deux dates."_s)
                           : QString();
}

QString TFrmRecapitulatif::VidePaiements() const {
  if (!paiements_.empty()) return {};
  if (Globals.GroupesFrais->Count() == 0)
    return u"Il n'y a pas de groupe de paiement : ajoutez-en dans Paramètres."_s;
  return criteres_.Groupe < 0 ? u"Choisissez un groupe de paiement."_s : u"Aucun paiement dans ce groupe."_s;
}

QString TFrmRecapitulatif::VideFiscales() const {
  return fiscales_.empty() ? TexteVide(criteres_.Fiscale, u"Aucun élève n'a payé plus que son dû."_s)
                           : QString();
}

QString TFrmRecapitulatif::VideFrais() const {
  return frais_.empty() ? u"L'école ne demande pas de frais cette année."_s : QString();
}

// Printing

bool TFrmRecapitulatif::Accepte(TCodeMessage code) const {
  return code == TCodeMessage::Imprimer && DefinitionDe(page_).Imprimer != nullptr;
}

bool TFrmRecapitulatif::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  if (Accepte(message.Code))
    TImprimeur(contexte_, {}).Faire([this](const TContexteDocument& contexte) {
      return (this->*DefinitionDe(page_).Imprimer)(contexte);
    });
  return true;
}

TResultat TFrmRecapitulatif::ImprimerImpayes(const TContexteDocument& contexte) const {
  const TCriteresImpayes& criteres = criteres_.Impayes;
  return ImprimerListe(contexte, TitreImpayes(criteres.Frais, criteres.Services), TexteCriteres(criteres),
                       Impayes);
}

TResultat TFrmRecapitulatif::ImprimerPositives(const TContexteDocument& contexte) const {
  return ImprimerListe(contexte, u"Liste des balances positives"_s,
                       TexteBalances(criteres_.FraisPositifs, criteres_.ServicesPositifs), Positives);
}

TResultat TFrmRecapitulatif::ImprimerAnnuel(const TContexteDocument& contexte) const {
  return ImprimerListe(contexte, u"Relevé annuel"_s, {}, Annuel);
}

TResultat TFrmRecapitulatif::ImprimerPaiements(const TContexteDocument& contexte) const {
  const TGroupeFrais* groupe = Groupe();
  if (groupe != nullptr) return ::ImprimerPaiements(contexte, groupe->Libelle, paiements_);
  TResultat resultat;
  resultat.Messages += u"Veuillez choisir un groupe de paiement dans la liste déroulante"_s;
  return resultat;
}

TResultat TFrmRecapitulatif::ImprimerFiscales(const TContexteDocument& contexte) const {
  return ImprimerListe(contexte, u"Statistiques fiscales"_s, TextePeriode(criteres_.Fiscale), Fiscales);
}

TResultat TFrmRecapitulatif::ImprimerFrais(const TContexteDocument& contexte) const {
  return ::ImprimerFrais(contexte, Coches());
}

// Files and balances

void TFrmRecapitulatif::Exporter() {
  const TDefinition& page = DefinitionDe(page_);
  if (page.Exporter == nullptr) return;
  const QString nom =
      NomDeFichier({QString::fromUtf16(page.Titre), AnneeEnTexte(Globals.Eleves->AnneeScolaire)}, u".csv"_s);
  const auto fichier =
      contexte_.Dialogues().FichierAEnregistrer(u"Exporter la liste"_s, nom, u"Texte (*.csv)"_s);
  if (!fichier) return;
  contexte_.Principal.Etat(TNiveauEtat::Neutre, {});  // what an earlier one did is no word about this one
  page.Exporter(this->*page.Lignes, *fichier);
  Dire(u"Exporté : " % *fichier);
  contexte_.Dialogues().Information(u"L'exportation des informations est terminée."_s);
}

void TFrmRecapitulatif::Transferer(TSensTransfert sens, const TGrille& grille) {
  IDialogues& dialogues = contexte_.Dialogues();
  const int travail = Globals.AnneeScolaire;
  const QString refus = RefusTransfert(*Globals.Eleves, travail);
  if (!refus.isEmpty()) return dialogues.Message(refus);
  std::vector<TEleve*> coches;
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne)
    if (grille.Ligne(ligne).Coche) coches.push_back(grille.Ligne(ligne).Objet.En<TEleve>());
  if (coches.empty())
    return dialogues.Information(u"Veuillez cocher un ou plusieurs élèves dans la liste."_s);
  if (!dialogues.ConfirmerGrave(QuestionTransfert(sens, CompterEleves(std::ssize(coches)), travail))) return;
  qint64 passes = 0;
  try {
    const TAttente attente(dialogues);
    TProgression progression(dialogues, static_cast<int>(coches.size()));
    TransfererSoldes(*Globals.Eleves, travail, coches, sens, [&](const TMontantEleve& reporte) {
      progression.Avancer(static_cast<int>(++passes), reporte.Eleve->NomComplet());
    });
    const qint64 restes = std::ssize(coches) - passes;
    QString texte =
        Compter(passes, u"solde transféré"_s, u"soldes transférés"_s, u"Aucun solde transféré"_s) %
        u" vers l'année scolaire " % AnneeCompacte(travail);
    if (restes > 0)
      texte += u" ; non repris (absents de cette année-là ou sans solde) : " % QString::number(restes);
    Dire(texte);
  } catch (const Exception& e) {
    dialogues.Message(e.Message % u"\n\nDéjà transférés : " % QString::number(passes) % u'.');
  }
  Remplir(TabImpaye);
  Remplir(TabBalancePositive);
}
