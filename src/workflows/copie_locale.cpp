#include "workflows/copie_locale.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "core/dialogues.h"
#include "core/exceptions.h"
#include "core/fichiers.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<TDataSet> LirePhotos(const QString& chemin, IDialogues& dialogues) {
  if (!QFile::exists(chemin)) return std::nullopt;
  try {
    return TDataSet::LireDe(chemin);
  } catch (const Exception& e) {
    dialogues.Message(e.Message);
    return std::nullopt;
  }
}

/// None when there is no such file, or when it is damaged.
std::optional<TDataSet> LireCopie(const QString& chemin) {
  try {
    if (QFile::exists(chemin)) return TDataSet::LireDe(chemin);
  } catch (const Exception&) {  // a transfer replaces it
  }
  return std::nullopt;
}

}  // namespace

TFichiersTablette::TFichiersTablette(const QString& dossier)
    : Eleves(dossier % u"/ELEVES"),
      Classes(dossier % u"/CLASSES"),
      Photos(dossier % u"/PHOTOS"),
      Repas(dossier % u"/presences.txt"),
      Transferes(dossier % u"/transferes.txt") {
  try {
    AcheverFichiers(dossier);
  } catch (const Exception&) {  // the copies are as they are: what reads them says so
  }
}

int NombreLignesLocales(const QString& chemin) {
  const auto copie = LireCopie(chemin);
  return copie ? copie->NombreLignes() : 0;
}

bool CopieLisible(const QString& chemin) { return LireCopie(chemin).has_value(); }

TServiceHorsLigne::TServiceHorsLigne(const TReglagesPoste& reglages, IDialogues& dialogues)
    : fichiers_(reglages),
      copieEleves_(TDataSet::LireDe(fichiers_.Eleves)),
      copieClasses_(TDataSet::LireDe(fichiers_.Classes)),
      photos_(LirePhotos(fichiers_.Photos, dialogues)),
      repas_(fichiers_.Repas),
      transferes_(TFichierRepas::OuVide(fichiers_.Transferes)),
      eleves_(std::make_unique<TEleves>(copieEleves_.Annee, copieClasses_, copieEleves_)) {
  if (photos_) eleves_->SourcePhotos = &*photos_;
}

bool TServiceHorsLigne::EstServi(const TEleve& eleve, TDateTime jour) const {
  return repas_.Contient(LigneRepas(eleve.Matricule, jour));
}

bool TServiceHorsLigne::EstTransfere(const TEleve& eleve, TDateTime jour) const {
  return transferes_.Contient(LigneRepas(eleve.Matricule, jour));
}

int TServiceHorsLigne::NombreServis(const TClasse& classe, TDateTime jour) const {
  return static_cast<int>(
      std::ranges::count_if(classe.ListeEleves, [&](const TEleve* eleve) { return EstServi(*eleve, jour); }));
}

bool TServiceHorsLigne::Toucher(const TEleve& eleve, TDateTime jour) {
  repas_.Basculer(LigneRepas(eleve.Matricule, jour));
  return EstServi(eleve, jour);
}

std::vector<QString> TServiceHorsLigne::Annees() const {
  std::vector<QString> annees;
  for (const auto& classe : eleves_->Classes())
    if (annees.empty() || annees.back() != classe->CodeClasse) annees.push_back(classe->CodeClasse);
  return annees;
}

TDateTime TServiceHorsLigne::DateTransfert() const {
  const QDateTime moment = QFileInfo(fichiers_.Eleves).lastModified();
  return DateDeQt(moment.date()) + HeureDeQt(moment.time());
}

QString PourquoiSansService(bool horsLigne, const TReglagesPoste& reglages) {
  if (!horsLigne)
    return u"La tablette est reliée au serveur : faites un transfert pour servir les repas hors ligne."_s;
  if (!QFile::exists(TFichiersTablette(reglages).Eleves))
    return u"Il n'y a pas encore d'élèves sur cette tablette : faites un transfert."_s;
  return {};
}
