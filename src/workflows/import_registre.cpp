#include "workflows/import_registre.h"

#include <QSet>
#include <numeric>

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/lecture_dates.h"
#include "pupils/eleves.h"
#include "workflows/professeurs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneEtablissement = 1;

constexpr TImportRegistre::TDisposition kDisposition1 = {.Site = 1,
                                                         .Matricule = 2,
                                                         .Nom = 3,
                                                         .Prenom = 4,
                                                         .DateNaissance = 6,
                                                         .Adresse = 12,
                                                         .Numero = 13,
                                                         .CodePostal = 14,
                                                         .Localite = 15,
                                                         .DateFichier = 16,
                                                         .Classe = 17,
                                                         .SousClasse = 18,
                                                         .NomResponsable = 22,
                                                         .PrenomResponsable = 23,
                                                         .NomResponsable2 = 34,
                                                         .PrenomResponsable2 = 35,
                                                         .Adresse2 = 41,
                                                         .Numero2 = 42,
                                                         .CodePostal2 = 43,
                                                         .Localite2 = 44,
                                                         .Filtre = -1,
                                                         .NettoyerClasse = false};

constexpr TImportRegistre::TDisposition kDisposition2 = {.Site = 2,
                                                         .Matricule = 3,
                                                         .Nom = 10,
                                                         .Prenom = 11,
                                                         .DateNaissance = 6,
                                                         .Adresse = 13,
                                                         .Numero = 14,
                                                         .CodePostal = 16,
                                                         .Localite = 17,
                                                         .DateFichier = 23,
                                                         .Classe = 26,
                                                         .SousClasse = 27,
                                                         .NomResponsable = 28,
                                                         .PrenomResponsable = 29,
                                                         .NomResponsable2 = 35,
                                                         .PrenomResponsable2 = 36,
                                                         .Adresse2 = -1,
                                                         .Numero2 = -1,
                                                         .CodePostal2 = -1,
                                                         .Localite2 = -1,
                                                         .Filtre = 22,
                                                         .NettoyerClasse = true};

/// The register writes some fields as ="12".
QString Nettoyer(QString texte) { return texte.remove(u'"').remove(u'='); }

/// "yyyy/mm/dd" is understood like "dd/mm/yyyy".
TDateTime DateDuFichier(const QString& texte) {
  if (texte.size() == 10 && texte[4] == u'/')
    return StrToDate(texte.mid(8, 2) + u'/' + texte.mid(5, 2) + u'/' + texte.left(4));
  return StrToDate(texte);
}

TFicheRegistre FicheDe(const TEleve& eleve) {
  return {eleve.Matricule,
          eleve.Nom,
          eleve.Prenom,
          eleve.DateNaissance != 0.0 ? FormatDate(eleve.DateNaissance) : QString(),
          eleve.LibelleClasse().trimmed(),
          eleve.CodeImplantation,
          QString(eleve.NomResponsable % u' ' % eleve.PrenomResponsable).trimmed(),
          eleve.Localite};
}

}  // namespace

TImportRegistre::TImportRegistre(TControleur& controleur)
    : controleur_(controleur),
      disposition_(Globals.Parametres->GetParametre(TParam::DispositionRegistre) == u"2" ? kDisposition2
                                                                                         : kDisposition1) {}

int TImportRegistre::NombreEleves() const { return qMax(0, grille_.NombreLignes() - 1); }

QString TImportRegistre::Champ(int ligne, int colonne) const {
  return colonne < 0 ? QString() : grille_.Cellule(ligne, colonne);
}

QString TImportRegistre::Classe(int ligne) const {
  const QString classe = Champ(ligne, disposition_.Classe);
  return disposition_.NettoyerClasse ? Nettoyer(classe) : classe;
}

TFicheRegistre TImportRegistre::Fiche(int ligne) const {
  const TDisposition& d = disposition_;
  QString naissance = Champ(ligne, d.DateNaissance);
  try {
    naissance = FormatDate(LireDateCompacte(naissance));
  } catch (const EConvertError&) {  // shown as it stands: the transfer will refuse it
  }
  return {Champ(ligne, d.Matricule),
          Champ(ligne, d.Nom),
          Champ(ligne, d.Prenom),
          naissance,
          QString(Classe(ligne) % u' ' % Champ(ligne, d.SousClasse)).trimmed(),
          Champ(ligne, d.Site),
          QString(Champ(ligne, d.NomResponsable) % u' ' % Champ(ligne, d.PrenomResponsable)).trimmed(),
          Champ(ligne, d.Localite)};
}

void TImportRegistre::Vider() {
  pret_ = false;
  grille_ = {};
  numeros_.clear();
  fichier_.clear();
  ligneRefusee_ = 0;
}

bool TImportRegistre::Etape1(const QString& fichier) {
  const TAttente attente(controleur_.Dialogues());
  Vider();
  fichier_ = fichier;
  grille_ = TTexteSepare::Lire(fichier);
  numeros_.resize(grille_.Lignes.size());
  std::iota(numeros_.begin(), numeros_.end(), 1);
  Filtrer();
  if (SurLecture) SurLecture();
  pret_ = VerifierAnnee();
  return pret_;
}

// The header line is exempt from both filters.
void TImportRegistre::Filtrer() {
  for (int ligne = grille_.NombreLignes() - 1; ligne > 0; --ligne) {
    const QString site = Champ(ligne, kColonneEtablissement);
    const QString code = Globals.Parametres->GetParametre(TParam::CodeEtablissement);
    const bool autreSite = !code.isEmpty() && !site.isEmpty() && site != code;
    const bool autreSorte = disposition_.Filtre >= 0 && !Champ(ligne, disposition_.Filtre).contains(u" M");
    if (!autreSite && !autreSorte) continue;
    grille_.Lignes.erase(grille_.Lignes.begin() + ligne);
    numeros_.erase(numeros_.begin() + ligne);
  }
}

TDateTime TImportRegistre::DatePremierEleve() const {
  try {
    return DateDuFichier(Champ(1, disposition_.DateFichier));
  } catch (const EConvertError& e) {
    throw EConvertError(u"Date du fichier (ligne %1, colonne %2) : %3"_s.arg(NumeroLigne(1))
                            .arg(disposition_.DateFichier + 1)
                            .arg(e.Message));
  }
}

bool TImportRegistre::VerifierAnnee() {
  if (NombreEleves() < kElevesMinimum) return false;
  const int annee = Globals.AnneeScolaire;
  if (DatePremierEleve() <= EncodeDate(annee + 1, 6, 30)) return true;
  if (!controleur_.Dialogues().ConfirmerGrave(
          u"Votre fichiel SIEL contient des élèves d'une nouvelle année scolaire.\r\n"
          "Voulez-vous clôturer l'année scolaire %1-%2 ?\r\n\r\n"_s.arg(annee)
              .arg(annee + 1) %
          TClotureAnnee::Annonce(NombreEleves())))
    return false;
  TClotureAnnee(controleur_).Cloturer();
  return true;
}

TBilanRegistre TImportRegistre::Etape2() {
  IDialogues& dialogues = controleur_.Dialogues();
  const TAttente attente(dialogues);
  TProgression progression(dialogues, grille_.NombreLignes() - 2);
  TBilanRegistre bilan;
  ligneRefusee_ = 0;
  {
    TEleves tous(controleur_.Base(), 0);
    for (int ligne = 1; ligne < grille_.NombreLignes(); ++ligne) {
      try {
        TransfererLigne(tous, ligne, bilan);
      } catch (const EConvertError& e) {
        throw EConvertError(Situer(ligne, e));
      } catch (const Exception& e) {
        throw Exception(Situer(ligne, e));
      }
      progression.Avancer(ligne - 1, Champ(ligne, disposition_.Nom));
      if (SurLigneTransferee) SurLigneTransferee(ligne);
      dialogues.TraiterEvenements();
    }
  }
  pret_ = false;
  controleur_.ChargerAnnee(Globals.AnneeScolaire);
  return bilan;
}

// Effect.

QString TImportRegistre::NomDe(int ligne) const {
  return QString(Champ(ligne, disposition_.Nom) % u' ' % Champ(ligne, disposition_.Prenom)).trimmed();
}

TEffetRegistre TImportRegistre::Effet() const {
  TEffetRegistre effet;
  if (NombreEleves() == 0) return effet;
  TDataModule1& base = controleur_.Base();
  const TEleves tous(base, 0), inscrits(base, Globals.AnneeScolaire);
  for (int ligne = 1; ligne < grille_.NombreLignes(); ++ligne) {
    effet.Lignes.push_back(Sort(tous, inscrits, ligne));
    if (Champ(ligne, disposition_.Site).trimmed().isEmpty()) effet.SansSite += NomDe(ligne);
  }
  const bool commencee =
      std::ranges::any_of(inscrits.Tous(), [](const TEleve* e) { return !TProfesseurs::EstProfesseur(*e); });
  effet.Partis = commencee ? ElevesPartis(inscrits) : ElevesPartis(TEleves(base, Globals.AnneeScolaire - 1));
  return effet;
}

TSortLigne TImportRegistre::Sort(const TEleves& eleves, const TEleves& inscrits, int ligne) const {
  TEleve lu;
  try {
    RemplirEleve(lu, ligne);
  } catch (const EConvertError&) {
    return TSortLigne::Illisible;
  }
  if (Champ(ligne, disposition_.Site).size() > kCodeImplantationMaximum) return TSortLigne::Illisible;
  const TEleve* eleve = eleves.TrouverParMatricule(lu.Matricule);
  if (eleve == nullptr) return TSortLigne::Nouveau;
  return Differe(*eleve, lu) || ChangeDeClasse(inscrits.TrouverParId(eleve->Id), ligne)
             ? TSortLigne::Modifie
             : TSortLigne::Inchange;
}

bool TImportRegistre::Differe(const TEleve& eleve, const TEleve& lu) const {
  static constexpr QString TEleve::*kTextes[] = {&TEleve::Nom,
                                                 &TEleve::Prenom,
                                                 &TEleve::NomResponsable,
                                                 &TEleve::PrenomResponsable,
                                                 &TEleve::Adresse,
                                                 &TEleve::Numero,
                                                 &TEleve::Localite,
                                                 &TEleve::NomResponsable2,
                                                 &TEleve::PrenomResponsable2};
  static constexpr QString TEleve::*kSecond[] = {&TEleve::Adresse2, &TEleve::Numero2, &TEleve::Localite2};
  const auto autre = [&](QString TEleve::*champ) { return eleve.*champ != lu.*champ; };
  if (std::ranges::any_of(kTextes, autre)) return true;
  if (eleve.DateNaissance != lu.DateNaissance || eleve.CodePostal != lu.CodePostal) return true;
  return disposition_.Adresse2 >= 0 &&
         (std::ranges::any_of(kSecond, autre) || eleve.CodePostal2 != lu.CodePostal2);
}

bool TImportRegistre::ChangeDeClasse(const TEleve* inscrit, int ligne) const {
  return inscrit == nullptr || inscrit->CodeClasse != Classe(ligne) ||
         inscrit->SousClasse != Champ(ligne, disposition_.SousClasse) ||
         inscrit->CodeImplantation != Champ(ligne, disposition_.Site);
}

// A file of one site says nothing of the pupils of the others.
std::vector<TFicheRegistre> TImportRegistre::ElevesPartis(const TEleves& inscrits) const {
  QSet<QString> presents;
  for (int ligne = 1; ligne < grille_.NombreLignes(); ++ligne)
    presents += Champ(ligne, disposition_.Matricule);
  const QString site = Globals.Parametres->GetParametre(TParam::CodeEtablissement);
  std::vector<TFicheRegistre> partis;
  for (const TEleve& eleve : inscrits) {
    const bool ailleurs =
        !site.isEmpty() && !eleve.CodeImplantation.isEmpty() && eleve.CodeImplantation != site;
    if (eleve.FlgRadie || ailleurs || TProfesseurs::EstProfesseur(eleve)) continue;
    if (!presents.contains(eleve.Matricule)) partis.push_back(FicheDe(eleve));
  }
  return partis;
}

/// The failure of a row, with the line of the file and the pupil's name.
QString TImportRegistre::Situer(int ligne, const Exception& e) {
  ligneRefusee_ = ligne;
  const QString nom = NomDe(ligne);
  return u"Ligne " % QString::number(NumeroLigne(ligne)) % u" du fichier" %
         (nom.isEmpty() ? QString() : QString(u" (" % nom % u')')) % u" : " % e.Message %
         u"\nLes élèves des lignes qui précèdent sont enregistrés.";
}

void TImportRegistre::TransfererLigne(TEleves& eleves, int ligne, TBilanRegistre& bilan) {
  const QString site = Champ(ligne, disposition_.Site);
  if (site.size() > kCodeImplantationMaximum)
    throw Exception(
        u"Le code d'implantation « %1 » a plus de %2 caractères."_s.arg(site).arg(kCodeImplantationMaximum));
  TEleve* eleve = eleves.TrouverParMatricule(Champ(ligne, disposition_.Matricule));
  const bool nouveau = eleve == nullptr;
  if (nouveau) {
    // Filled before it joins the others, so that a malformed row leaves none behind.
    auto cree = std::make_unique<TEleve>();
    RemplirEleve(*cree, ligne);
    eleve = &eleves.AddEleve(std::move(cree));
  } else {
    RemplirEleve(*eleve, ligne);
    eleves.AddEleve(*eleve);
  }
  eleves.Save();
  if (eleve->Id == -1) throw Exception(u"Le transfert est arrêté : l'élève n'a pas reçu de numéro."_s);
  eleves.AddClasseEleve(eleve->Id, Classe(ligne), Globals.AnneeScolaire, site,
                        Champ(ligne, disposition_.SousClasse));
  if (!eleves.ElevesClasses.EstInscrit(eleve->Id, Globals.AnneeScolaire))
    throw Exception(u"Le transfert est arrêté : l'élève n'a pas pu être inscrit."_s);
  ++bilan.Lignes;
  ++(nouveau ? bilan.Crees : bilan.Modifies);
}

void TImportRegistre::RemplirEleve(TEleve& eleve, int ligne) const {
  const TDisposition& d = disposition_;
  eleve.Matricule = Champ(ligne, d.Matricule);
  eleve.Nom = Champ(ligne, d.Nom);
  eleve.Prenom = Champ(ligne, d.Prenom);
  eleve.DateNaissance = LireDateCompacte(Champ(ligne, d.DateNaissance));
  eleve.NomResponsable = Champ(ligne, d.NomResponsable);
  eleve.PrenomResponsable = Champ(ligne, d.PrenomResponsable);
  eleve.Adresse = Champ(ligne, d.Adresse);
  eleve.Numero = Nettoyer(Champ(ligne, d.Numero));
  eleve.CodePostal = StrToInt(Champ(ligne, d.CodePostal));
  eleve.Localite = Champ(ligne, d.Localite);
  eleve.NomResponsable2 = Champ(ligne, d.NomResponsable2);
  eleve.PrenomResponsable2 = Champ(ligne, d.PrenomResponsable2);
  if (d.Adresse2 < 0) return;  // this layout knows nothing of the second address: it stays as it is
  eleve.Adresse2 = Champ(ligne, d.Adresse2);
  eleve.Numero2 = Nettoyer(Champ(ligne, d.Numero2));
  eleve.CodePostal2 = StrToIntDef(Champ(ligne, d.CodePostal2), 0);
  eleve.Localite2 = Champ(ligne, d.Localite2);
}
