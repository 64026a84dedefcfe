#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "core/exceptions.h"
#include "core/formats.h"
#include "core/mois.h"
#include "payments/iban.h"
#include "pupils/eleves.h"
#include "screens/parametres/champs_parametres.h"
#include "screens/payments/frm_attribution_compte.h"
#include "screens/pupils/frm_signaletique.h"
#include "workflows/repartition.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPhotoMax = 50 * 1024 * 1024;
/// More points than that on a side show nowhere, and what a telephone takes is more than one picture may
/// hold.
constexpr int kCotePhoto = 2400;

/// The picture upright, as the camera says that it was held. Raises Exception.
QImage LireImage(const QString& chemin) {
  const QFileInfo fichier(chemin);
  if (chemin.isEmpty())
    throw Exception(
        u"Ce qui a été déposé n'est pas un fichier de cet ordinateur. Enregistrez d'abord l'image, puis "
        "choisissez son fichier."_s);
  if (!fichier.isFile()) throw Exception(u"« %1 » n'est pas un fichier."_s.arg(fichier.fileName()));
  if (fichier.size() > kPhotoMax)
    throw Exception(u"« %1 » est trop grand pour une photo (50 Mo au plus)."_s.arg(fichier.fileName()));
  QImageReader lecteur(chemin);
  lecteur.setDecideFormatFromContent(true);
  lecteur.setAutoTransform(true);
  const QSize taille = lecteur.size();
  if (std::max(taille.width(), taille.height()) > kCotePhoto)
    lecteur.setScaledSize(taille.scaled(kCotePhoto, kCotePhoto, Qt::KeepAspectRatio));
  const QImage image = lecteur.read();
  if (image.isNull() && taille.isValid())
    throw Exception(
        u"« %1 » ne peut pas être lu : cette image est abîmée, ou trop grande."_s.arg(fichier.fileName()));
  if (image.isNull()) throw Exception(u"« %1 » n'est pas une image."_s.arg(fichier.fileName()));
  return image;
}

}  // namespace

// Identity

TTableChamps<TEleve> TFrmSignaletique::Table() {
  TTableChamps<TEleve> table = ChampsEleve();
  const std::pair<QString, std::function<void()>> suites[] = {
      {u"cb2eEnfant"_s, [this] { RelireListes(); }},
      {u"cb3eEnfant"_s, [this] { RelireListes(); }},
      {u"cbEleveRadie"_s, [this] {
         contexte_.Principal.Envoyer({TCodeMessage::EleveRadie, {}});
       }}};
  for (const auto& [nom, suite] : suites)
    for (TChampDe<TEleve>& champ : table)
      if (champ.Champ.Nom == nom) champ.Champ.Ensuite = suite;
  return table;
}

bool TFrmSignaletique::ExigeEleve() {
  if (avecEleve_ && Globals.EleveCourant != nullptr) return true;
  contexte_.Dialogues().Message(u"Veuillez sélectionner un élève"_s);
  return false;
}

void TFrmSignaletique::EnregistrerEleve(const TChamp& champ) {
  TEleve& eleve = *champs_.Objet();
  if (const QString faute = FauteChampEleve(eleve, champ); !faute.isEmpty()) throw EConvertError(faute);
  SauverEleve(eleve);
  QString quoi = champ.Libelle;
  while (quoi.endsWith(u':') || quoi.endsWith(u' ')) quoi.chop(1);
  const QString fait = quoi % u" : enregistré pour " % nomComplet_;
  if (champ.Nom == u"edNumCompte" && IbanFautif(eleve.NumCompte))
    contexte_.Principal.Etat(TNiveauEtat::Alerte,
                             fait % u", mais ce n'est pas un IBAN : vérifiez ses chiffres");
  else
    contexte_.Principal.Etat(TNiveauEtat::Succes, fait);
}

void TFrmSignaletique::SauverEleve(TEleve& eleve) {
  Globals.Eleves->AddEleve(eleve);
  Globals.Eleves->Save();
  const std::vector<TEleve*> disparus = Globals.Eleves->RangeesDisparues();  // others may be waiting there
  if (std::ranges::find(disparus, &eleve) != disparus.end())
    throw Exception(u"Cet élève n'existe plus : un autre poste l'a supprimé."_s);
  annulation_ = {};
}

bool TFrmSignaletique::Enregistrer(TDistributor& collection, const std::function<bool()>& disparue,
                                   const QString& fait) {
  try {
    collection.Save();
    if (disparue()) throw Exception(u"Cette ligne n'existe plus : un autre poste l'a supprimée."_s);
    DireEnregistre(fait);
    return true;
  } catch (const Exception& e) {
    DireNonEnregistre(e);
    collection.Remettre();
    return false;
  }
}

void TFrmSignaletique::EnregistrerPaiement(TAllFraisEleve& lignes, TFraisEleve& paiement,
                                           const QString& fait) {
  try {
    RangerPaiement(lignes, paiement);
    DireEnregistre(fait);
  } catch (const Exception& e) {
    DireNonEnregistre(e);
  }
}

void TFrmSignaletique::DireEnregistre(const QString& fait) {
  annulation_ = {};
  contexte_.Principal.Etat(TNiveauEtat::Succes, QString(fait % u" : enregistré pour " % nomComplet_));
}

void TFrmSignaletique::DireNonEnregistre(const Exception& e) const {
  contexte_.Principal.Etat(TNiveauEtat::Refus, u"Non enregistré"_s);
  contexte_.Dialogues().Message(e.Message);
}

void TFrmSignaletique::RelireListes() { RelireListes(Frais.Grille.LigneCourante()); }

// Whoever ticks several by keyboard stays where they are.
void TFrmSignaletique::RelireListes(int frais) {
  const TEleve& eleve = *Globals.EleveCourant;
  TGrille& releves = Releve.Grille;
  const TObjetVu releve =
      releves.LigneCourante() < 0 ? TObjetVu() : releves.Ligne(releves.LigneCourante()).Objet;
  Frais.Remplir(eleve);
  Frais.Grille.ChoisirLigne(std::min(frais, Frais.Grille.NombreLignes() - 1));
  RemplirReleve(eleve);
  if (releve) releves.ChoisirLigne(releves.TrouverObjet(releve));
  Annoncer();
}

// Account

void TFrmSignaletique::AdvGlowButton1Click() {
  if (!ExigeEleve()) return;
  TEleve& eleve = *Globals.EleveCourant;
  QStringList numeros, noms;
  Globals.Eleves->ComptesDonneurs(eleve.Id, numeros, noms);
  if (numeros.isEmpty())
    return contexte_.Dialogues().Message(u"Aucun numéro de compte n'a été trouvé pour cet élève"_s);
  TFrmAttributionCompte choix(contexte_.Dialogues(), numeros, noms);
  if (numeros.size() > 1 && contexte_.Modale.MontrerModal(choix) != TResultatModal::Valide) return;
  const int choisi = std::max(choix.Choisi(), 0);
  DonnerCompte(eleve, numeros[choisi], noms[choisi]);
}

void TFrmSignaletique::DonnerCompte(TEleve& eleve, const QString& numero, const QString& titulaire) {
  const auto longueur = [this](const QString& champ) {
    return champs_.Champ(champs_.Indice(champ)).Longueur;
  };
  const std::pair avant(eleve.NumCompte, eleve.NomTitulaireCompte);
  eleve.NumCompte = numero.left(longueur(u"edNumCompte"_s));
  eleve.NomTitulaireCompte = titulaire.left(longueur(u"edNomTitulaireCompte"_s));
  try {
    SauverEleve(eleve);
    contexte_.Principal.Etat(TNiveauEtat::Succes, QString(u"N° compte : enregistré pour " % nomComplet_));
  } catch (const Exception& e) {
    std::tie(eleve.NumCompte, eleve.NomTitulaireCompte) = avant;
    contexte_.Principal.Etat(TNiveauEtat::Refus, u"Non enregistré"_s);
    contexte_.Dialogues().Message(e.Message);
  }
  champs_.Montrer(&eleve);
}

// Months

void TFrmSignaletique::cbMaitreClick(int groupe, bool coche) {
  std::vector<int> mois;
  for (int indice = 0; indice < std::ssize(kMoisScolaires); ++indice) mois.push_back(indice);
  MarquerMois(groupe, mois, coche);
}

void TFrmSignaletique::MarquerMois(int groupe, const std::vector<int>& mois, bool coche) {
  if (!ExigeEleve()) return Annoncer();
  const TGroupeMois& quoi = mois_[static_cast<std::size_t>(groupe)];
  const TEleves& eleves = *Globals.Eleves;
  TPresencesParticulieres& marques = *Globals.PresencesParticulieres;
  const int eleve = Globals.EleveCourant->Id;
  for (const int indice : mois) {
    const int numero = kMoisScolaires[static_cast<std::size_t>(indice)];
    if (!coche) {
      marques.RetireMarque(quoi.Type, eleve, numero);
      continue;
    }
    auto marque = std::make_unique<TPresenceParticuliere>();
    marque->EleveId = eleve;
    marque->TypePresence = quoi.Type;
    marque->Mois = numero;
    marque->Annee = eleves.AnneeDuMois(numero);
    marques.AjouteMarque(std::move(marque));
  }
  Enregistrer(marques, quoi.Titre);
  LireMarques(mois_, marques, eleve);
  RelireListes();
}

// Activities

void TFrmSignaletique::LireActivites(const TEleve& eleve) {
  const TActiviteEleve* premiere = Globals.ActivitesEleves->ActivitesEleve(eleve.Id);
  joursActivite_ = premiere != nullptr ? premiere->FlgJours : std::array<bool, 5>{};
  activites_.clear();
  for (const TActivite& activite : *Globals.Activites) {
    const TActiviteEleve* suivie = Globals.ActivitesEleves->ActiviteEleveParCle(eleve.Id, activite.Id);
    activites_.push_back(
        {activite.Id, activite.Libelle, suivie != nullptr ? suivie->FlgJours : std::array<bool, 5>{}});
  }
}

void TFrmSignaletique::cbLundi1Click(int jour, bool coche) {
  if (!avecEleve_ || Globals.EleveCourant == nullptr) return Annoncer();
  const int premiere = Globals.Activites->Count() > 0 ? (*Globals.Activites)[0].Id : 0;
  MarquerJour(Globals.ActivitesEleves->ActivitesEleve(Globals.EleveCourant->Id), premiere, jour, coche);
}

void TFrmSignaletique::cbJourActiviteClick(int activite, int jour, bool coche) {
  if (!avecEleve_ || Globals.EleveCourant == nullptr) return Annoncer();
  const int id = activites_[static_cast<std::size_t>(activite)].ActiviteId;
  MarquerJour(Globals.ActivitesEleves->ActiviteEleveParCle(Globals.EleveCourant->Id, id), id, jour, coche);
}

void TFrmSignaletique::MarquerJour(TActiviteEleve* inscription, int activite, int jour, bool coche) {
  const TEleve& eleve = *Globals.EleveCourant;
  TActivitesEleves& inscriptions = *Globals.ActivitesEleves;
  if (inscription == nullptr && !coche) return Annoncer();
  if (inscription == nullptr) {
    auto nouvelle = std::make_unique<TActiviteEleve>();
    nouvelle->EleveId = eleve.Id;
    nouvelle->ActiviteId = activite;
    inscription = &inscriptions.Add(std::move(nouvelle));
  }
  inscription->FlgJours[static_cast<std::size_t>(jour)] = coche;
  inscriptions.Add(*inscription);
  Enregistrer(inscriptions, u"Activités"_s);
  LireActivites(eleve);
  RelireListes();
}

// Photo

void TFrmSignaletique::Image1Click() {
  if (!ExigeEleve()) return;
  const auto chemin = contexte_.Dialogues().ChoisirFichier(u"Choisir une photo"_s,
                                                           u"Images (*.jpg *.jpeg *.png *.bmp *.gif)"_s);
  if (chemin) PrendrePhoto(*chemin);
}

void TFrmSignaletique::PrendrePhoto(const QString& chemin) {
  if (!ExigeEleve()) return;
  if (!Globals.EleveCourant->SetPhoto(LireImage(chemin)))
    return contexte_.Principal.Etat(TNiveauEtat::Refus, u"Photo non enregistrée"_s);
  DaterPhotos();
  contexte_.Principal.Etat(TNiveauEtat::Succes, QString(u"Photo enregistrée pour " % nomComplet_));
}

bool TFrmSignaletique::AvecPhoto() const {
  return !photo_.isNull() ||
         (avecEleve_ && Globals.EleveCourant != nullptr && Globals.EleveCourant->OctetsPhoto());
}

void TFrmSignaletique::Effacerlaphoto1Click() {
  if (!ExigeEleve() || !AvecPhoto()) return;
  if (!contexte_.Dialogues().ConfirmerGrave(u"Voulez-vous effacer cette photo ?"_s)) return;
  Globals.EleveCourant->DeletePhoto();
  DaterPhotos();
  contexte_.Principal.Etat(TNiveauEtat::Succes, QString(u"Photo effacée pour " % nomComplet_));
}

// The tablets fetch the pictures again when the stamp is another one.
void TFrmSignaletique::DaterPhotos() {
  const TDateTime maintenant = contexte_.Controleur.Horloge().Maintenant();
  Globals.Parametres->SetParametre(TParam::DatePhoto,
                                   FormatDate(maintenant) % HeureVersQt(maintenant).toString(u" hh:mm:ss"_s));
  TChampsParametres::Sauver();
  LirePhoto(*Globals.EleveCourant);
  Annoncer();
}
