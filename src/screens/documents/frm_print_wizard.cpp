#include "screens/documents/frm_print_wizard.h"

#include <QSet>
#include <algorithm>

#include "core/accord.h"
#include "core/comparaisons.h"
#include "core/formats.h"
#include "core/mois.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

constexpr TPageAssistant kPages[] = {TPageAssistant::Rapport, TPageAssistant::Qui, TPageAssistant::Periode};

QString CombienEleves(std::size_t nombre) {
  return Compter(static_cast<qint64>(nombre), u"élève"_s, u"élèves"_s, u"aucun élève"_s);
}

QString CombienClasses(std::size_t nombre) {
  return Compter(static_cast<qint64>(nombre), u"classe"_s, u"classes"_s, u"aucune classe"_s);
}

/// The objects of the ticked rows, in the order in which the list shows them.
template <class T>
std::vector<T*> Coches(const TGrille& liste) {
  std::vector<T*> objets;
  for (int ligne = 0; ligne < liste.NombreLignes(); ++ligne)
    if (liste.Ligne(ligne).Coche) objets.push_back(liste.Ligne(ligne).Objet.En<T>());
  return objets;
}

TTableChamps<TPeriode> ChampsPeriode() {
  const auto date = [](const QString& nom, const QString& nomme) {
    return TChamp{.Nom = nom,
                  .Libelle = u"au"_s,
                  .Genre = TGenreChamp::Date,
                  .Nomme = nomme,
                  .Obligatoire = true,
                  .Refus = u"La date introduite est incorrecte."_s,
                  .Suite = true};
  };
  return {{date(u"dtDate1"_s, u"Premier jour"_s), Membre(&TPeriode::Premier)},
          {date(u"dtDate2"_s, u"Dernier jour"_s), Membre(&TPeriode::Dernier)}};
}

int AnneeAffichee() { return Globals.Eleves->AnneeScolaire; }

}  // namespace

TDemandeAssistant TDemandeAssistant::De(std::vector<TTitreAssistant> titres) {
  const bool periode = std::ranges::any_of(
      titres, [](const TTitreAssistant& titre) { return titre.AvecPeriode || !titre.Annees.empty(); });
  return {true, std::move(titres), periode};
}

TFrmPrintWizard::TFrmPrintWizard(const TContexteEcran& contexte)
    : contexte_(contexte), champs_(ChampsPeriode(), TChamps::Aussitot) {
  champs_.DefinirLectureSeule(true);
  champs_.SurEnregistrer = [this](const TChamp&) { Annoncer(); };
  LstEleve.DefinirColonnes({{u"Nom de l'élève"_s, 150}, {u"Classe"_s, 70}, {u"Implantation"_s, 112}});
  LstClasse.DefinirColonnes({{u"Nom de la classe"_s, 150}, {u"Implantation"_s, 112}});
  LstEleve.CasesACocher = LstClasse.CasesACocher = true;
  for (TGrille* liste : {&LstEleve, &LstClasse})
    liens_ += liste->SurChangement.Suivre([this](TGrille::TChangement) { Annoncer(); });
  mois_ = NomsMoisScolaires();
}

bool TFrmPrintWizard::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::ImprimerAssistant) return false;
  const auto* demande = message.En<TDemandeAssistant>();
  if (demande == nullptr) return false;
  if (const auto choix = Demander(*demande); choix && demande->Demandeur != nullptr)
    Diffuser(TCodeMessage::AssistantConfirme, *demande->Demandeur, *choix);
  return true;
}

std::optional<TChoixDocument> TFrmPrintWizard::Demander(const TDemandeAssistant& demande) {
  Preparer(demande);
  if (contexte_.Modale.MontrerModal(*this) != TResultatModal::Valide) return {};
  return choix_;
}

void TFrmPrintWizard::Preparer(const TDemandeAssistant& demande) {
  ResultatModal = TResultatModal::Aucun;
  demande_ = demande;
  filtreEleve_.clear();
  filtreClasse_.clear();
  RemplirListes();
  PoserDates();
  lblEleve = Globals.EleveCourant != nullptr ? Globals.EleveCourant->NomComplet() : QString();
  lblClasse = Globals.ClasseCourante != nullptr ? Globals.ClasseCourante->Libelle() : QString();
  ChoisirQui();
  ChoixRapportClick(PremierPossible());
  const auto* premiere = std::ranges::find_if(kPages, [this](TPageAssistant p) { return PageVisible(p); });
  OuvrirPage(premiere != std::end(kPages) ? *premiere : TPageAssistant::Rapport);
}

void TFrmPrintWizard::ChoisirQui() {
  if (quiChoisi_ && ChoixQuiPossible(choixQui_)) return;
  quiChoisi_ = false;
  for (const TChoixQui choix : {TChoixQui::Eleve, TChoixQui::Classe, TChoixQui::Eleves})
    if (ChoixQuiPossible(choix)) {
      choixQui_ = choix;
      return;
    }
}

// The objects of another load are gone, so a list is filled again when the year no longer gives the
// rows that it was filled with. Ticks and order outlive that.
void TFrmPrintWizard::RemplirListes() {
  const TEleves& eleves = *Globals.Eleves;
  const QString annee = QString::number(eleves.AnneeScolaire);
  TContenu pupilles, classes;
  for (TEleve& eleve : eleves)
    pupilles.push_back({&eleve,
                        {eleve.NomComplet(), eleve.LibelleClasse(), eleve.LibelleImplantation()},
                        annee % u'/' % QString::number(eleve.Id)});
  RangerNoms(pupilles);
  for (const auto& classe : eleves.Classes())
    classes.push_back({classe.get(),
                       {classe->Libelle(), classe->LibelleImplantation()},
                       annee % u'/' % classe->Libelle() % u'/' % classe->CodeImplantation});
  std::ranges::stable_sort(classes, [](const TLigneListe& a, const TLigneListe& b) {
    return ComparerValeurs(TGenre::Texte, a.Textes[0], b.Textes[0]) < 0;
  });
  Remplir(LstEleve, contenuEleves_, std::move(pupilles), triEleve_);
  Remplir(LstClasse, contenuClasses_, std::move(classes), triClasse_);
}

// Within a class the year gives the names in the order of the database, which knows no accents.
void TFrmPrintWizard::RangerNoms(TContenu& pupilles) {
  for (auto debut = pupilles.begin(); debut != pupilles.end();) {
    const auto fin = std::find_if(debut, pupilles.end(), [&](const TLigneListe& ligne) {
      return ligne.Textes[1] != debut->Textes[1] || ligne.Textes[2] != debut->Textes[2];
    });
    std::stable_sort(debut, fin, [](const TLigneListe& a, const TLigneListe& b) {
      return ComparerValeurs(TGenre::Texte, a.Textes[0], b.Textes[0]) < 0;
    });
    debut = fin;
  }
}

void TFrmPrintWizard::Remplir(TGrille& liste, TContenu& avant, TContenu contenu, const TTri& tri) {
  if (contenu == avant) return;
  QSet<QString> coches;
  for (const TLigneListe& ligne : avant)
    if (liste.Ligne(liste.TrouverObjet(ligne.Objet)).Coche) coches += ligne.Cle;
  avant = std::move(contenu);
  const TGrille::TLot lot(liste);
  liste.Vider();
  for (const TLigneListe& ligne : avant)
    liste.Cocher(liste.Ajouter(ligne.Textes, ligne.Objet), coches.contains(ligne.Cle));
  if (tri.Colonne >= 0) liste.Trier(tri.Colonne, tri.Croissant);
}

void TFrmPrintWizard::PoserDates() {
  champs_.AbandonnerTout();  // what was typed before the wizard was given up
  if (champs_.Actifs()) return;
  const TDateTime aujourdhui = contexte_.Controleur.Horloge().Aujourdhui();
  periode_ = {aujourdhui, aujourdhui};
  champs_.Montrer(&periode_);
  indiceMois_ = IndiceMoisScolaire(DecodeDate(aujourdhui).Mois);
}

bool TFrmPrintWizard::PageVisible(TPageAssistant page) const {
  switch (page) {
    case TPageAssistant::Rapport:
      return !Titres().empty();
    case TPageAssistant::Qui:
      return demande_.PageQui;
    case TPageAssistant::Periode:
      return demande_.PagePeriode && (Titre() == nullptr || Titre()->AvecPeriode || !Titre()->Annees.empty());
  }
  return false;
}

TPageAssistant TFrmPrintWizard::PageVoisine(int sens) const {
  for (int page = static_cast<int>(page_) + sens; page >= 0 && page < static_cast<int>(std::size(kPages));
       page += sens)
    if (PageVisible(kPages[page])) return kPages[page];
  return page_;
}

void TFrmPrintWizard::OuvrirPage(TPageAssistant page) {
  page_ = page;
  Annoncer();
}

// The first title, or the first that can be made when that one cannot.
int TFrmPrintWizard::PremierPossible() const {
  const auto possible = std::ranges::find_if(
      Titres(), [](const TTitreAssistant& titre) { return titre.Empechement.isEmpty(); });
  if (Titres().empty()) return -1;
  return possible == Titres().end() ? 0 : static_cast<int>(possible - Titres().begin());
}

int TFrmPrintWizard::IndiceDernier() const {
  const auto trouve = std::ranges::find_if(Titres(), [this](const TTitreAssistant& titre) {
    return titre.Titre == dernier_ && titre.Empechement.isEmpty();
  });
  return trouve == Titres().end() ? -1 : static_cast<int>(trouve - Titres().begin());
}

void TFrmPrintWizard::btnDernierClick() {
  if (IndiceDernier() >= 0) ChoixRapportClick(IndiceDernier());
}

void TFrmPrintWizard::btnMoisEcranClick() {
  if (MoisEcran() == 0) return;
  RbMoisClick(TChoixPeriode::Mois);
  ChoisirMois(IndiceMoisScolaire(MoisEcran()));
}

void TFrmPrintWizard::ChoixRapportClick(int indice) {
  indice_ = indice;
  annee_ = Titre() != nullptr ? Titre()->Annee : 0;
  Annoncer();
}

/// The checked one; null without titles.
const TTitreAssistant* TFrmPrintWizard::Titre() const {
  return indice_ < 0 ? nullptr : &Titres()[static_cast<std::size_t>(indice_)];
}

const std::vector<int>& TFrmPrintWizard::Annees() const {
  static const std::vector<int> aucune;
  return Titre() != nullptr ? Titre()->Annees : aucune;
}

void TFrmPrintWizard::ChoisirAnnee(int annee) {
  annee_ = annee;
  Annoncer();
}

QString TFrmPrintWizard::Portee() const {
  if (Annees().empty() || !Titre()->Portee) return {};
  TChoixDocument choix;
  AjouterChoisis(choix);
  choix.AnneeRevenus = annee_;
  return Titre()->Portee(choix);
}

bool TFrmPrintWizard::DemandePeriode() const {
  return PageVisible(TPageAssistant::Periode) && Annees().empty();
}

bool TFrmPrintWizard::ChoixQuiPossible(TChoixQui choix) const {
  if (choix == TChoixQui::Eleve) return Globals.EleveCourant != nullptr;
  return choix != TChoixQui::Classe || Globals.ClasseCourante != nullptr;
}

void TFrmPrintWizard::RbEleveClick(TChoixQui choix) {
  if (!ChoixQuiPossible(choix)) return;
  choixQui_ = choix;
  quiChoisi_ = true;
  Annoncer();
}

void TFrmPrintWizard::btnToutSelectionnerClick() {
  TGrille& liste = LstClasseActive() ? LstClasse : LstEleve;
  const QString& filtre = LstClasseActive() ? filtreClasse_ : filtreEleve_;
  if (!SelectionActive()) return;
  const TGrille::TLot lot(liste);
  for (int ligne = 0; ligne < liste.NombreLignes(); ++ligne)
    if (liste.Contient(ligne, filtre)) liste.Cocher(ligne, true);
}

void TFrmPrintWizard::Filtrer(const TGrille& liste, const QString& filtre) {
  (&liste == &LstClasse ? filtreClasse_ : filtreEleve_) = filtre;
}

void TFrmPrintWizard::btnRienSelectionnerClick() {
  if (LstClasseActive())
    LstClasse.CocherTout(false);
  else if (LstEleveActive())
    LstEleve.CocherTout(false);
}

void TFrmPrintWizard::Trier(TGrille& liste, TTri& tri, int colonne, bool croissant) {
  if (colonne < 0 || (tri.Colonne == colonne && tri.Croissant == croissant)) return;
  tri = {colonne, croissant};
  liste.Trier(colonne, croissant);
}

void TFrmPrintWizard::RbMoisClick(TChoixPeriode choix) {
  if (choix != TChoixPeriode::Periode) champs_.AbandonnerTout();  // no matter any more
  choixPeriode_ = choix;
  champs_.DefinirLectureSeule(choix != TChoixPeriode::Periode);
  Annoncer();
}

void TFrmPrintWizard::ChoisirMois(int indice) {
  indiceMois_ = indice;
  Annoncer();
}

void TFrmPrintWizard::btnSuivantClick() {
  if (page_ == TPageAssistant::Qui && !AQuelquun()) return RefuserPersonne();
  OuvrirPage(PageVoisine(1));
}

void TFrmPrintWizard::btnAnnulerClick() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}

void TFrmPrintWizard::KWizard1FinishButtonClick() {
  if (DemandePeriode() && !champs_.QuitterTout()) return;
  if (choixPeriode_ == TChoixPeriode::Mois && indiceMois_ < 0 && DemandePeriode())
    return Refuser(u"Veuillez sélectionner un mois dans la liste déroulante"_s, TChampAssistant::Mois);
  if (PageVisible(TPageAssistant::Qui) && !AQuelquun()) {
    OuvrirPage(TPageAssistant::Qui);
    return RefuserPersonne();
  }
  choix_ = {};
  AjouterChoisis(choix_);
  choix_.Indice = indice_;
  choix_.AnneeRevenus = annee_;
  if (Titre() != nullptr) dernier_ = Titre()->Titre;
  const TPeriode periode = Periode();
  choix_.DateDebut = periode.Premier;
  choix_.DateFin = periode.Dernier;
  ResultatModal = TResultatModal::Valide;
  Fermer();
}

void TFrmPrintWizard::Refuser(const QString& texte, TChampAssistant champ) {
  contexte_.Dialogues().Message(texte);
  SurFoyer(champ);
}

void TFrmPrintWizard::RefuserPersonne() {
  Refuser(u"Aucun élève n'a été sélectionné !"_s,
          LstClasseActive() ? TChampAssistant::LstClasse : TChampAssistant::LstEleve);
}

bool TFrmPrintWizard::AQuelquun() const {
  TChoixDocument choix;
  AjouterChoisis(choix);
  return !choix.Eleves.empty() || !choix.Classes.empty();
}

void TFrmPrintWizard::AjouterChoisis(TChoixDocument& choix) const {
  switch (choixQui_) {
    case TChoixQui::Eleve:
      if (Globals.EleveCourant != nullptr) choix.Eleves.push_back(Globals.EleveCourant);
      break;
    case TChoixQui::Eleves:
      choix.Eleves = Coches<TEleve>(LstEleve);
      choix.TouteLEcole = std::ssize(choix.Eleves) == LstEleve.NombreLignes();
      break;
    case TChoixQui::Classe:
      if (Globals.ClasseCourante != nullptr) choix.Classes.push_back(Globals.ClasseCourante);
      break;
    case TChoixQui::Classes:
      for (const TClasse* classe : Coches<TClasse>(LstClasse)) choix.Classes.push_back(classe);
      choix.TouteLEcole = std::ssize(choix.Classes) == LstClasse.NombreLignes();
      break;
  }
}

TPeriode TFrmPrintWizard::Periode() const {
  if (choixPeriode_ == TChoixPeriode::Periode) return periode_;
  if (choixPeriode_ == TChoixPeriode::Mois && indiceMois_ >= 0)
    return BornesMois(kMoisScolaires[static_cast<std::size_t>(indiceMois_)], AnneeAffichee());
  return BornesAnnee(AnneeAffichee());
}

QString TFrmPrintWizard::Compte() const {
  TChoixDocument choix;
  AjouterChoisis(choix);
  if (choixQui_ == TChoixQui::Eleve || choixQui_ == TChoixQui::Eleves)
    return CombienEleves(choix.Eleves.size());
  std::size_t eleves = 0;
  for (const TClasse* classe : choix.Classes) eleves += classe->ListeEleves.size();
  return CombienClasses(choix.Classes.size()) % u", " % CombienEleves(eleves);
}

QString TFrmPrintWizard::TexteQui() const {
  if (choixQui_ == TChoixQui::Eleve) return lblEleve;
  if (choixQui_ == TChoixQui::Classe && Globals.ClasseCourante != nullptr)
    return lblClasse % u", " % CombienEleves(Globals.ClasseCourante->ListeEleves.size());
  return Compte();
}

QString TFrmPrintWizard::TexteAnnee() const {
  const QString annee = QString::number(AnneeAffichee()), suivante = QString::number(AnneeAffichee() + 1);
  return u"du 1er septembre " % annee % u" au 30 juin " % suivante;
}

QString TFrmPrintWizard::TextePeriode() const {
  if (!Annees().empty()) return u"revenus de %1"_s.arg(annee_);
  if (choixPeriode_ == TChoixPeriode::Annee) return TexteAnnee();
  if (choixPeriode_ == TChoixPeriode::Periode)
    return u"du " % FormatDate(periode_.Premier) % u" au " % FormatDate(periode_.Dernier);
  if (indiceMois_ < 0) return u"aucun mois choisi"_s;
  const int mois = kMoisScolaires[static_cast<std::size_t>(indiceMois_)];
  return NomMoisCourant(mois) % u' ' % QString::number(Globals.Eleves->AnneeDuMois(mois));
}

QString TFrmPrintWizard::Resume() const {
  QStringList parties;
  if (Titre() != nullptr) parties += Titre()->Titre;
  if (PageVisible(TPageAssistant::Qui)) parties += TexteQui();
  if (PageVisible(TPageAssistant::Periode)) parties += TextePeriode();
  return parties.join(u"  ·  "_s);
}
