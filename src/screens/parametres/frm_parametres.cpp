#include "screens/parametres/frm_parametres.h"

#include <algorithm>

#include "core/conversions.h"
#include "core/exceptions.h"
#include "screens/parametres/pages_parametres.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kNomGroupeMaximum = 250;

const QString kTexteLegal =
    u"Faisant suite à la circulaire 4516 du 29/08/2013 dont l’application pour l’enseignement fondamental "
    "débute en septembre 2015, tout\n"
    "au long de l’année scolaire, selon une périodicité de 1 à 4 mois, l’école remettra des décomptes "
    "périodiques détaillant au minimum\n"
    "l’ensemble des frais réclamés, leurs montants, leurs objets et le caractère obligatoire ou facultatif "
    "des "
    "montants réclamés.)\n"
    "\n"
    "Concrètement, vous aurez 3 décomptes par année scolaire. Le premier fin décembre début janvier, le "
    "second "
    "au moment des congés\n"
    "de printemps (Pâques) et le dernier en fin d’année scolaire.\n"
    "\n"
    "<b>Ces décomptes ne sont pas des factures ni des rappels de paiements, mais simplement un relevé, un "
    "récapitulatif des\n"
    "sommes qui ont déjà été payées ou sont en passe d’être payées.</b>"_s;

/// The prices of a meal that have a field.
const struct {
  QString Champ;
  TParam Param;
} kPrix[] = {{u"edRepasMaternel"_s, TParam::RepasMaternel}, {u"edRepasPrimaire"_s, TParam::RepasPrimaire}};

QString RefusNomGroupe(const QString& nom) {
  if (nom.trimmed().isEmpty()) return u"Le nom d'un groupe ne peut pas être vide."_s;
  return nom.size() <= kNomGroupeMaximum
             ? QString()
             : u"Le nom d'un groupe a %1 caractères au plus."_s.arg(kNomGroupeMaximum);
}

QString RefusNumero(const QString& texte) {
  return StrToIntDef(texte, 0) >= 1 ? QString() : u"« %1 » n'est pas le numéro d'un paramètre."_s.arg(texte);
}

QString RefusValeur(const QString& texte) {
  return texte.size() <= kParametreMaximum
             ? QString()
             : u"Un paramètre a %1 caractères au plus."_s.arg(kParametreMaximum);
}

}  // namespace

TFrmParametres::TFrmParametres(TContexteEcran& contexte)
    : lbGroupe({{u"Groupe de paiement"_s, 480}}), contexte_(contexte) {
  Composer();
}

// Fields

void TFrmParametres::Composer() {
  for (TPageDecrite& page : PagesDecrites()) {
    auto champs = std::make_unique<TChampsParametres>(contexte_, std::move(page.Champs));
    champs->Avant = [this](const TChamp& champ) { Avant(champ); };
    champs->SurRefus = [this, refus = champs->SurRefus](const TChamp& champ, const QString& faute) {
      GarderPrix(champ);
      refus(champ, faute);
    };
    champs->Avis = AvisParametre;
    Pages.push_back({page.Titre, std::move(champs)});
  }
  TChampsParametres& divers = PageDe(u"edServeurFTP"_s);
  liens_ += divers.SurChangement.Suivre([this, ftp = divers.Indice(u"edServeurFTP"_s)](int champ) {
    if (champ == ftp) ServeurFtpChange();
  });
}

TChampsParametres& TFrmParametres::PageDe(const QString& nom) const {
  return *std::ranges::find_if(Pages, [&](const TPageParametres& page) {
            return page.Champs->Indice(nom) >= 0;
          })->Champs;
}

void TFrmParametres::FormShow() {
  if (!Globals.Parametres) return;
  for (const TPageParametres& page : Pages) page.Champs->Remplir();
  if (!Globals.GroupesFrais)
    Globals.GroupesFrais = std::make_unique<TGroupesFrais>(contexte_.Controleur.Base());
  RemplirGroupes(nullptr);
}

// The price of a meal counts as soon as it is in memory, and is refused here when it is none.
void TFrmParametres::Avant(const TChamp& champ) {
  RendrePrix(champ.Nom);
  for (const auto& [nom, param] : kPrix) {
    if (nom != champ.Nom) continue;
    const QString texte = Globals.Parametres->GetParametre(param);
    if (!texte.isEmpty()) StrToCurr(texte);
    prixRefuses_.erase(nom);
  }
}

// A price that is refused stands in memory until something else is stored, or the screen closes.
void TFrmParametres::GarderPrix(const TChamp& champ) {
  for (const auto& [nom, param] : kPrix) {
    if (nom != champ.Nom) continue;
    prixRefuses_.emplace(nom, Globals.Parametres->GetParametre(param));
    Globals.Parametres->SetParametre(param, PageDe(nom).Texte(PageDe(nom).Indice(nom)).trimmed());
  }
}

void TFrmParametres::RendrePrix(const QString& sauf) {
  for (const auto& [nom, param] : kPrix) {
    const auto refuse = prixRefuses_.find(nom);
    if (refuse == prixRefuses_.end() || nom == sauf) continue;
    Globals.Parametres->SetParametre(param, refuse->second);
    prixRefuses_.erase(refuse);
  }
}

// Written at each key, as it stands; the text in the field is not touched.
void TFrmParametres::ServeurFtpChange() {
  TChampsParametres& champs = PageDe(u"edServeurFTP"_s);
  const QString texte = champs.Texte(champs.Indice(u"edServeurFTP"_s)).trimmed();
  if (!Globals.Parametres || texte == Globals.Parametres->GetParametre(TParam::ServeurFTP)) return;
  RendrePrix({});
  Globals.Parametres->SetParametre(TParam::ServeurFTP, texte);
  try {
    TChampsParametres::Sauver();
  } catch (const Exception& e) {
    Dire(TNiveauEtat::Refus, u"Non enregistré : " % e.Message);
  }
}

int TFrmParametres::Inserer(const QString& nom, int debut, int fin, const QString& texte) {
  TChampsParametres& champs = PageDe(nom);
  const int champ = champs.Indice(nom);
  QString nouveau = champs.Texte(champ);
  nouveau.replace(u"\r\n"_s, u"\n"_s);  // the places are those of the field, which knows one end of line
  nouveau.replace(debut, fin - debut, texte);
  if (nouveau.size() > kParametreMaximum) {
    contexte_.Dialogues().Message(
        u"Ce texte n'a pas de place : la communication compterait %1 caractères, et %2 au plus sont conservés."_s
            .arg(nouveau.size())
            .arg(kParametreMaximum));
    return -1;
  }
  champs.Taper(champ, nouveau);
  return debut + static_cast<int>(texte.size());
}

void TFrmParametres::AdvGlowButton2Click() {
  const QString nom = u"memFraisEffectifs"_s;
  TChampsParametres& champs = PageDe(nom);
  const QString texte = QString(champs.Texte(champs.Indice(nom))).replace(u"\r\n"_s, u"\n"_s);
  const QString separation = texte.isEmpty() || texte.endsWith(u'\n') ? QString() : u"\n"_s;
  const auto fin = static_cast<int>(texte.size());
  if (Inserer(nom, fin, fin, separation % kTexteLegal) >= 0) champs.Quitter(champs.Indice(nom));
}

// Leaving

bool TFrmParametres::LaisserChamp() {
  return std::ranges::all_of(Pages, [](const TPageParametres& page) { return page.Champs->QuitterTout(); });
}

QString TFrmParametres::EnSuspens() const {
  const bool enSuspens =
      std::ranges::any_of(Pages, [](const TPageParametres& page) { return page.Champs->Modifies(); });
  return enSuspens ? u"paramètre non enregistré"_s : QString();
}

// What lets the screen go, such as the load of another year, reads the settings.
bool TFrmParametres::FormCloseQuery() {
  if (!EnSuspens().isEmpty() &&
      !contexte_.Dialogues().ConfirmerGrave(
          u"Un paramètre n'est pas enregistré. Voulez-vous abandonner ce que vous avez introduit ?"_s))
    return false;
  RendrePrix({});
  return true;
}

// Payment groups

void TFrmParametres::RemplirGroupes(const TGroupeFrais* choisi) {
  const TGrille::TLot lot(lbGroupe);
  lbGroupe.Vider();
  std::vector<TLibelleGroupe> libelles;
  Globals.GroupesFrais->LibellesGroupes(libelles);
  for (const TLibelleGroupe& libelle : libelles) lbGroupe.Ajouter({libelle.Libelle}, libelle.Groupe);
  lbGroupe.ChoisirLigne(choisi != nullptr ? lbGroupe.TrouverObjet(const_cast<TGroupeFrais*>(choisi)) : -1);
}

/// What cannot be stored is said, and memory is again what the table holds; false then.
bool TFrmParametres::SauverGroupes() {
  try {
    Globals.GroupesFrais->Save();
    for (const TGroupeFrais& groupe : *Globals.GroupesFrais) ExigerCle(groupe);
    return true;
  } catch (const Exception& e) {
    Globals.GroupesFrais->Remettre();
    RemplirGroupes(nullptr);
    Dire(TNiveauEtat::Refus, u"Non enregistré"_s);
    contexte_.Dialogues().Message(e.Message);
    return false;
  }
}

void TFrmParametres::btnAjoutFaitClick() {
  const auto nom = contexte_.Dialogues().Saisir({.Titre = u"Nouveau groupe de paiement"_s,
                                                 .Invite = u"Veuillez entrer le nom de votre groupe"_s,
                                                 .Refus = RefusNomGroupe});
  if (!nom) return;
  auto neuf = std::make_unique<TGroupeFrais>();
  neuf->Libelle = *nom;
  const TGroupeFrais& groupe = Globals.GroupesFrais->Add(std::move(neuf));
  if (!SauverGroupes()) return;
  RemplirGroupes(&groupe);
  Dire(TNiveauEtat::Succes, u"Groupe ajouté : " % *nom);
}

void TFrmParametres::btnDeleteFaitClick() {
  const int ligne = lbGroupe.LigneCourante();
  if (ligne < 0) {
    Dire(TNiveauEtat::Alerte, u"Choisissez d'abord le groupe à supprimer"_s);
    return;
  }
  auto& groupe = *lbGroupe.Ligne(ligne).Objet.En<TGroupeFrais>();
  const QString nom = groupe.Libelle;
  if (!contexte_.Dialogues().ConfirmerGrave(u"Confirmez-vous la suppression du groupe: " % nom % u'?'))
    return;
  Globals.GroupesFrais->Remove(groupe);
  if (!SauverGroupes()) return;
  RemplirGroupes(nullptr);
  lbGroupe.ChoisirLigne(std::min(ligne, lbGroupe.NombreLignes() - 1));
  Dire(TNiveauEtat::Succes, u"Groupe supprimé : " % nom);
}

// Maintenance

// The script has been run, whatever its statements came to: what is missing all the same is said after that.
void TFrmParametres::btnEtape1Click() {
  const QString fait = u"Votre base de données est à jour !"_s;
  try {
    const TAttente attente(contexte_.Dialogues());
    contexte_.Controleur.Base().CreerTables();
  } catch (const Exception&) {
    contexte_.Dialogues().Information(fait);
    throw;
  }
  contexte_.Dialogues().Information(fait);
}

void TFrmParametres::btnEtape1MouseDown() {
  const auto numero = contexte_.Dialogues().Saisir(
      {.Titre = u"Paramètre"_s, .Invite = u"Numéro du paramètre :"_s, .Refus = RefusNumero});
  if (!numero) return;
  const int id = StrToInt(*numero);
  const auto param = static_cast<TParam>(id);
  const QString avant = Globals.Parametres->GetParametre(param);
  const auto valeur = contexte_.Dialogues().Saisir({.Titre = u"Paramètre"_s,
                                                    .Invite = u"Valeur actuelle : " % avant,
                                                    .Valeur = avant,
                                                    .Refus = RefusValeur});
  if (!valeur) return;
  RendrePrix({});
  Globals.Parametres->SetParametre(param, *valeur);
  TChampsParametres::Sauver();
  for (const TPageParametres& page : Pages) page.Champs->Remplir();
  Dire(TNiveauEtat::Succes, u"Paramètre %1 enregistré"_s.arg(id));
  Annoncer();
}

bool TFrmParametres::BoutonProfesseurVisible() const {
  const QString repas =
      Globals.Parametres ? Globals.Parametres->GetParametre(TParam::ModuleRepas) : QString();
  return !repas.isEmpty() && repas != u"0";
}

void TFrmParametres::btnBoutonProfesseurClick() {
  if (!contexte_.Dialogues().ConfirmerGrave(
          u"Au prochain démarrage, cet ordinateur ne montrera plus que les réservations de repas, et rien "
          u"dans le "
          "programme ne permet d'en revenir. Voulez-vous activer le mode professeur ?"_s))
    return;
  if (contexte_.Controleur.ActiverModeProfesseur())
    Dire(TNiveauEtat::Succes, u"Mode professeur activé : il vaut dès le prochain démarrage"_s);
}
