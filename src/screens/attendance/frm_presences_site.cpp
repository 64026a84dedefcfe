// "Présences" and the FTP site of the remote scanning points.
#include <QDir>
#include <QFile>

#include "core/accord.h"
#include "screens/attendance/frm_presences.h"

using namespace Qt::StringLiterals;

// The connection stays open until the file in hand is stored.
void TfrmPresences::btnImportFTPClick() {
  if (enCours_ || site_.Connecte() || !AccepteDePerdre()) return;
  const TAttente attente(contexte_.Dialogues());
  Vider();
  localSite_.clear();
  Site(&TfrmPresences::Chercher);
  if (localSite_.isEmpty()) {
    site_.Deconnecter();
    return;
  }
  try {
    Lire(TSource::Ftp, localSite_, nomSite_ % u" · " % Compter(autresSite_, u"fichier."_s, u"fichiers."_s));
  } catch (...) {
    site_.Deconnecter();
    throw;
  }
}

/// A failure of the site is told; false then.
bool TfrmPresences::Site(void (TfrmPresences::*travail)()) {
  try {
    (this->*travail)();
    return true;
  } catch (const Exception& e) {
    DireErreur(e);
    return false;
  }
}

/// Fetches the first file of the site.
void TfrmPresences::Chercher() {
  const auto parametre = [](TParam param) { return Globals.Parametres->GetParametre(param); };
  site_.Connecter(parametre(TParam::ServeurFTP), parametre(TParam::UserFTP), parametre(TParam::MdpFTP));
  const std::vector<QString> noms = site_.Lister();
  if (const int ecartes = site_.NombreEcartes(); ecartes > 0)
    contexte_.Dialogues().Message(
        Compter(ecartes, u"fichier du site a un nom que le programme ne peut pas prendre."_s,
                u"fichiers du site ont un nom que le programme ne peut pas prendre."_s) %
        u"\nRenommez-les sur le site : lettres sans accents et chiffres."_s);
  if (noms.empty()) {
    contexte_.Dialogues().Information(u"Toutes les informations ont été transférées."_s);
    return;
  }
  const QDir dossier(DossierPresences(contexte_.Controleur.Reglages()) % u"/Traitement");
  dossier.mkpath(u"."_s);
  nomSite_ = noms.front();
  autresSite_ = static_cast<int>(noms.size()) - 1;
  const QString local = dossier.filePath(nomSite_);
  if (site_.Telecharger(nomSite_, local) && QFile::exists(local))
    localSite_ = local;
  else
    contexte_.Dialogues().Message(u"Une erreur s'est produite pendant l'ouverture du fichier"_s);
}

// After the save only. A file that could not be archived stays on the site too.
void TfrmPresences::ArchiverEtEffacer() {
  import_.ArchiverSousSonNom(localSite_);
  site_.Effacer(nomSite_);
}
