#include "screens/pupils/frm_import.h"

#include <QFileInfo>
#include <QScopedValueRollback>

namespace {

const QString kNonCloturee = QStringLiteral("Année non clôturée : pas de transfert");

QString NomSeul(const QString& chemin) { return QFileInfo(chemin).fileName(); }

QString Eleves(int nombre) {
  return QString::number(nombre) % (nombre > 1 ? u" élèves transférés" : u" élève transféré");
}

}  // namespace

TFrmImport::TFrmImport(TContexteEcran& contexte) : contexte_(contexte) {
  Grille.DefinirColonnes({{QStringLiteral("État"), 110},
                          {QStringLiteral("Matricule"), 120},
                          {QStringLiteral("Nom"), 161},
                          {QStringLiteral("Prénom"), 120},
                          {QStringLiteral("Naissance"), 96, TAlignement::Gauche, TOrdre::Date},
                          {QStringLiteral("Classe"), 64},
                          {QStringLiteral("Implantation"), 112},
                          {QStringLiteral("Responsable"), 168},
                          {QStringLiteral("Localité"), 112}});
  Grille.Etats = {{},
                  {QStringLiteral("En cours"), QStringLiteral("data-information")},
                  {QStringLiteral("Transféré"), QStringLiteral("dialog-ok-apply")},
                  {QStringLiteral("Refusé"), QStringLiteral("data-error")}};
}

void TFrmImport::FormShow() {
  import_ = std::make_unique<TImportRegistre>(contexte_.Controleur);
  import_->SurLecture = [this] {  // shown before the question about the year
    DefinirFichier(TNiveauEtat::Neutre, QString(u"Fichier lu : " % NomSeul(import_->Fichier())));
    RemplirGrille();
  };
  import_->SurLigneTransferee = [this](int ligne) { SuivreLigne(ligne); };
}

bool TFrmImport::FormCloseQuery() {
  if (!enCours_) return true;
  contexte_.Principal.Etat(
      TNiveauEtat::Alerte,
      QStringLiteral("Une importation est en cours : l'écran reste ouvert jusqu'à la fin."));
  return false;
}

void TFrmImport::btnEtape1Click() {
  if (enCours_) return;
  {
    const QScopedValueRollback enCours(enCours_, true);
    import_->Vider();
    feuille_ = {};
    fichier_ = {};
    RemplirGrille();
    const auto chemin = contexte_.Dialogues().ChoisirFichier(
        QStringLiteral("Ouvrir le fichier de données"), QStringLiteral("Export du registre (*.csv *.txt)"));
    if (chemin) Ouvrir(*chemin);
  }
  Annoncer();
}

void TFrmImport::Ouvrir(const QString& chemin) {
  try {
    DecrireFichier(import_->Etape1(chemin));
  } catch (const Exception& e) {
    enCours_ = false;
    DefinirFichier(TNiveauEtat::Erreur, dynamic_cast<const ECloture*>(&e) != nullptr
                                            ? kNonCloturee
                                            : QString(u"Fichier refusé : " % NomSeul(chemin)));
    Annoncer();
    throw;
  }
}

void TFrmImport::DecrireFichier(bool accepte) {
  if (accepte)
    DefinirFichier(TNiveauEtat::Succes, fichier_.Texte);
  else if (import_->NombreEleves() < TImportRegistre::kElevesMinimum)
    DefinirFichier(TNiveauEtat::Alerte, QStringLiteral("Fichier trop court : rien à transférer"));
  else
    DefinirFichier(TNiveauEtat::Alerte, kNonCloturee);
}

void TFrmImport::DefinirFichier(TNiveauEtat niveau, const QString& texte) {
  fichier_ = {niveau, texte};
  contexte_.Principal.Etat(niveau, texte);
}

void TFrmImport::RemplirGrille() {
  const TGrille::TLot lot(Grille);
  Grille.Vider();
  for (int ligne = 1; ligne < import_->Grille().NombreLignes(); ++ligne) {
    const TImportRegistre::TFiche f = import_->Fiche(ligne);
    Grille.Ajouter(
        {QString(), f.Matricule, f.Nom, f.Prenom, f.Naissance, f.Classe, f.Site, f.Responsable, f.Localite});
  }
  Annoncer();
}

void TFrmImport::btnEtape2Click() {
  if (!Etape2Active()) return;
  TBilanRegistre bilan;
  {
    const QScopedValueRollback enCours(enCours_, true);
    feuille_ = {};
    feuille_.Visible = true;
    feuille_.Titre = QStringLiteral("Transfert en cours");
    feuille_.Note = QStringLiteral("La fenêtre reste ouverte jusqu'à la fin du transfert.");
    feuille_.Total = NombreEleves();
    {
      const TGrille::TLot lot(Grille);
      for (int ligne = 0; ligne < Grille.NombreLignes(); ++ligne) Grille.ChangerEtat(ligne, Attente);
    }
    PrendreEnMain(0);
    try {
      bilan = import_->Etape2();
    } catch (const Exception&) {
      enCours_ = false;
      Arreter();
      throw;
    }
    feuille_ = {};
  }
  DefinirFichier(TNiveauEtat::Succes, QString(Eleves(bilan.Lignes) % u" : " % QString::number(bilan.Crees) %
                                              (bilan.Crees > 1 ? u" nouveaux, " : u" nouveau, ") %
                                              QString::number(bilan.Modifies) % u" mis à jour"));
  Annoncer();
}

// The rows of the file count its header, those of the grid do not.
void TFrmImport::SuivreLigne(int ligne) {
  Grille.ChangerEtat(ligne - 1, Transfere);
  PrendreEnMain(ligne);
}

void TFrmImport::PrendreEnMain(int ligne) {
  if (ligne < Grille.NombreLignes()) {
    Grille.ChangerEtat(ligne, EnCours);
    Grille.ChoisirLigne(ligne);
    feuille_.Fait = ligne + 1;
    feuille_.Nom = QString(Grille.Texte(ligne, Nom) % u' ' % Grille.Texte(ligne, Prenom));
  }
  contexte_.Principal.Etat(
      TNiveauEtat::Neutre,
      QStringLiteral("Transfert en cours : %1 sur %2").arg(feuille_.Fait).arg(feuille_.Total));
  Annoncer();
}

void TFrmImport::Arreter() {
  const int refusee = import_->LigneRefusee();
  for (int ligne = 0; ligne < Grille.NombreLignes(); ++ligne)
    if (Grille.Ligne(ligne).Etat == EnCours)
      Grille.ChangerEtat(ligne, ligne + 1 == refusee ? Refuse : Attente);
  feuille_.Arretee = true;
  feuille_.Titre = refusee > 0 ? QStringLiteral("Arrêté à la ligne %1").arg(import_->NumeroLigne(refusee))
                               : QStringLiteral("Transfert arrêté");
  feuille_.Note = QStringLiteral("Les élèves marqués « Transféré » sont enregistrés.");
  contexte_.Principal.Etat(TNiveauEtat::Erreur, feuille_.Titre);
  Annoncer();
}
