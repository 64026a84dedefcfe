#include "workflows/transfert_repas.h"

#include <QFile>
#include <QFileInfo>

#include "core/accord.h"
#include "core/curseur.h"
#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/formats.h"
#include "core/mois.h"
#include "pupils/photo.h"

using namespace Qt::StringLiterals;

namespace {

/// So many pixels each way are enough for a frame on the tablet.
constexpr int kPhotoMaximum = 400;

/// The picture, reduced when it is larger: the set of a whole school has to fit the tablet. Raises Exception
/// when it is damaged.
QByteArray PhotoReduite(const QByteArray& octets) {
  const QImage image = DecoderJpeg(octets);
  if (qMax(image.width(), image.height()) <= kPhotoMaximum) return octets;
  return EncoderJpeg(
      image.scaled(kPhotoMaximum, kPhotoMaximum, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

/// The local copy in the making.
class TCopie {
 public:
  TCopie() {
    for (TDataSet* copie : {&eleves_, &classes_, &photos_}) {
      copie->Annee = Globals.Eleves->AnneeScolaire;
      copie->AnneeTravail = Globals.AnneeScolaire;
    }
  }

  void Ajouter(const TEleve& eleve) {
    eleves_.Ajouter({eleve.Id, eleve.Matricule, eleve.Nom, eleve.Prenom, eleve.FlgRadie ? 1 : 0});
    classes_.Ajouter({eleve.Id, eleve.CodeClasse, eleve.SousClasse});
  }

  void AjouterPhoto(const TEleve& eleve) {
    const auto octets = eleve.OctetsPhoto();
    if (!octets || octets->isEmpty()) return;
    try {
      photos_.Ajouter({eleve.Id, PhotoReduite(*octets)});
    } catch (const Exception&) {
      abimees_ += eleve.NomComplet();
    }
  }

  /// Pictures that have not been copied stay in their file as they are.
  void Enregistrer(const TFichiersTablette& fichiers, bool avecPhotos) const {
    std::vector<std::pair<QString, QByteArray>> tous{{Nom(fichiers.Classes), classes_.EnOctets()},
                                                     {Nom(fichiers.Eleves), eleves_.EnOctets()}};
    if (avecPhotos) tous.emplace_back(Nom(fichiers.Photos), photos_.EnOctets());
    EcrireFichiers(QFileInfo(fichiers.Eleves).path(), tous);
  }

  const QStringList& PhotosAbimees() const { return abimees_; }

 private:
  static QString Nom(const QString& chemin) { return QFileInfo(chemin).fileName(); }

  TDataSet eleves_{{u"ELEVE_ID"_s, u"MATRICULE"_s, u"NOM"_s, u"PRENOM"_s, u"FLG_RADIE"_s}};
  TDataSet classes_{{u"ELEVE_ID"_s, u"CLASSE"_s, u"SOUS_CLASSE"_s}};
  TDataSet photos_{{u"ELEVE_ID"_s, u"PHOTO"_s}};
  QStringList abimees_;
};

void Remplir(TCopie& copie, bool avecPhotos, TProgression& progression) {
  int fait = 0;
  for (const auto& classe : Globals.Eleves->Classes())
    for (const TEleve* eleve : classe->ListeEleves) {
      copie.Ajouter(*eleve);
      if (avecPhotos) copie.AjouterPhoto(*eleve);
      progression.Avancer(++fait, eleve->NomComplet());
    }
}

QString NomDe(int eleve) { return Globals.Eleves->TrouverParId(eleve)->NomComplet(); }

QByteArray LigneDe(int eleve, TDateTime jour) {
  return LigneRepas(Globals.Eleves->TrouverParId(eleve)->Matricule, jour);
}

/// The meals about to be stored.
std::vector<QByteArray> LignesDesRepas(const TImportPresences& import) {
  std::vector<QByteArray> lignes;
  for (const auto& bon : import.Bons())
    if (bon->TypePresence == TTypePresence::Repas) lignes.push_back(LigneDe(bon->EleveId, bon->DateReleve));
  return lignes;
}

/// The lines of the last day up to today, of which the tablet says that they are transferred: those of
/// before, and these.
QByteArray LignesTransferees(const QString& chemin, const std::vector<QByteArray>& repas,
                             TDateTime aujourdhui) {
  std::vector<QByteArray> lignes = TFichierRepas::OuVide(chemin).Lignes();
  lignes.insert(lignes.end(), repas.begin(), repas.end());
  TDateTime dernier = 0.0;
  for (const QByteArray& ligne : lignes)
    if (const TDateTime jour = JourDeLigne(ligne); jour <= aujourdhui) dernier = qMax(dernier, jour);
  std::erase_if(lignes, [&](const QByteArray& ligne) { return JourDeLigne(ligne) != dernier; });
  return TexteDesLignes(lignes);
}

bool ServeurRepond(TDataModule1& base) {
  try {
    return TCurseur(base, u"SELECT 1 FROM RDB$DATABASE"_s).Suivant();
  } catch (const Exception&) {
    return false;
  }
}

}  // namespace

void CopierEleves(const TFichiersTablette& fichiers, bool avecPhotos, IDialogues& dialogues) {
  TCopie copie;
  {
    TProgression progression(dialogues, Globals.Eleves->NombreEleves());
    Remplir(copie, avecPhotos, progression);
  }
  copie.Enregistrer(fichiers, avecPhotos);
  if (!copie.PhotosAbimees().isEmpty())
    dialogues.Message(
        u"Ces photos sont abîmées et n'ont pas été copiées : %1."_s.arg(copie.PhotosAbimees().join(u", ")));
}

QString RaisonAnomalie(const TAnomalie& anomalie) {
  if (!anomalie.Presence) return u"Matricule inconnu"_s;
  return u"Aucun tarif ne couvre cette heure de ce jour-là"_s;
}

QString TexteAnomalie(const TAnomalie& anomalie) {
  const TPresence* presence = anomalie.Presence.get();
  const TEleve* eleve = presence != nullptr ? Globals.Eleves->TrouverParId(presence->EleveId) : nullptr;
  const QString qui = eleve != nullptr ? eleve->NomComplet() : anomalie.Matricule;
  const TDateTime jour = presence != nullptr ? presence->DateReleve : anomalie.Date;
  return qui % u", " % FormatJour(jour) % u" : " % RaisonAnomalie(anomalie);
}

TBilanTransfert TTransfertRepas::Executer() {
  TBilanTransfert bilan;
  try {
    bilan.Connecte = controleur_.PasserEnLigne();
    if (bilan.Connecte) Transferer(bilan);
  } catch (...) {
    if (ServeurRepond(controleur_.Base()))
      controleur_.AbandonnerTransfert();
    else
      controleur_.PasserHorsLigne();
    throw;
  }
  if (bilan.Connecte && bilan.AImporter && !bilan.Importe) {
    controleur_.AbandonnerTransfert();
    return bilan;
  }
  import_.Vider();
  controleur_.PasserHorsLigne();
  bilan.HorsLigne = true;
  return bilan;
}

void TTransfertRepas::Transferer(TBilanTransfert& bilan) {
  bilan.PhotosCopiees = Synchroniser();
  if (bilan.PhotosCopiees) controleur_.MemoriserDatePhoto();
  ImporterRepas(bilan);
}

// A tablet without pictures, or with damaged ones, takes them, also from a school that has never changed one.
bool TTransfertRepas::Synchroniser() {
  const TFichiersTablette fichiers(controleur_.Reglages());
  const bool avecPhotos = Globals.Parametres->GetParametre(TParam::DatePhoto) != Globals.DatePhoto ||
                          !CopieLisible(fichiers.Photos);
  CopierEleves(fichiers, avecPhotos, controleur_.Dialogues());
  return avecPhotos;
}

void TTransfertRepas::ImporterRepas(TBilanTransfert& bilan) {
  const TFichiersTablette fichiers(controleur_.Reglages());
  if (!QFile::exists(fichiers.Repas) || LireFichier(fichiers.Repas).trimmed().isEmpty()) return;
  bilan.AImporter = true;
  import_.ImporterTablette(fichiers.Repas);
  bilan.Lignes = import_.NombreEntrees();
  bilan.Bons = import_.NombreBons();
  bilan.Anomalies = import_.NombreAnomalies();
  if (SurAnalyse) SurAnalyse(bilan);
  if (!AccepterAnomalies() || !AccepterHorsAnnee()) return;
  std::vector<QByteArray> repas = LignesDesRepas(import_);
  bilan.Repas = static_cast<int>(repas.size());
  import_.EnregistrerTablette();
  bilan.Importe = true;
  CompterEcartes(bilan);
  for (const TRepasEcarte& ecarte : import_.Ecartes())
    if (!ecarte.Connu) std::erase(repas, LigneDe(ecarte.EleveId, ecarte.Jour));
  const QByteArray transferees =
      LignesTransferees(fichiers.Transferes, repas, controleur_.Horloge().Aujourdhui());
  bilan.Archive = import_.ArchiverTablette(fichiers.Repas);
  try {
    EcrireFichier(fichiers.Transferes, transferees);
  } catch (const Exception& e) {  // the meals are stored: only the mark "transféré" is lost
    controleur_.Dialogues().Message(e.Message);
  }
}

/// What came of the meals that had no anomaly.
void TTransfertRepas::CompterEcartes(TBilanTransfert& bilan) const {
  for (const TRepasEcarte& ecarte : import_.Ecartes()) {
    --bilan.Repas;
    if (ecarte.Connu)
      ++bilan.DejaNotes;
    else
      bilan.Couverts += NomDe(ecarte.EleveId) % u", " % FormatJour(ecarte.Jour);
  }
}

bool TTransfertRepas::AccepterAnomalies() const {
  const auto nombre = static_cast<int>(import_.Anomalies().size());
  if (nombre == 0) return true;
  return controleur_.Dialogues().ConfirmerGrave(
      Compter(nombre, u"repas ne sera pas enregistré."_s, u"repas ne seront pas enregistrés."_s) %
      u"\nSouhaitez-vous tout de même continuer la procédure ?"_s);
}

// They are stored and seen in no year, nor would a second import of them be recognised.
bool TTransfertRepas::AccepterHorsAnnee() const {
  int nombre = 0;
  TDateTime premier = 0.0;
  for (const auto& bon : import_.Bons()) {
    const bool derive = import_.Origine(*bon) == TOrigine::Derive;  // no meal
    if (derive || !TImportPresences::EstHorsAnnee(bon->DateReleve)) continue;
    if (nombre++ == 0) premier = bon->DateReleve;
  }
  if (nombre == 0) return true;
  return controleur_.Dialogues().ConfirmerGrave(
      u"%1 repas hors de l'année scolaire %2 (le premier, du %3) : %4 dans cette année. L'horloge de la "
      "tablette est-elle juste ? Souhaitez-vous tout de même %5 ?"_s.arg(nombre)
          .arg(AnneeEnTexte(Globals.Eleves->AnneeScolaire), FormatDate(premier),
               Accorder(nombre, u"il sera enregistré, mais ne se verra pas"_s,
                        u"ils seront enregistrés, mais ne se verront pas"_s),
               Accorder(nombre, u"l'enregistrer"_s, u"les enregistrer"_s)));
}
