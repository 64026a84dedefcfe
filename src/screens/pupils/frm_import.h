#pragma once
#include <memory>

#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "workflows/import_registre.h"

/// "Importation des élèves": loading the pupils from an export of the school register.
class TFrmImport : public TForm {
 public:
  explicit TFrmImport(TContexteEcran& contexte);

  /// "Ouvrir le fichier de données". A file that cannot be taken raises Exception; nothing is loaded then.
  void btnEtape1Click();
  /// "Démarrer le transfert des données". A row that cannot be taken raises Exception, which names it.
  void btnEtape2Click();
  bool Etape1Active() const { return !enCours_; }
  bool Etape2Active() const { return !enCours_ && import_ && import_->Pret(); }
  /// Step 2 is what comes next; else step 1.
  bool Etape2Suivante() const { return Etape2Active() && !feuille_.Arretee; }

  /// States of the rows, in the order of the grid's.
  enum TEtatLigne { Attente, EnCours, Transfere, Refuse, Nouveau, Modifie, Inchange, Illisible, Parti };
  enum TColonne { Etat, Matricule, Nom, Prenom, Naissance, Classe, Implantation, Responsable, Localite };
  /// The rows of the file; behind them, until step 2, who is no longer in it.
  TGrille Grille;

  int NombreEleves() const { return import_ ? import_->NombreEleves() : 0; }
  /// What stands beside the counter: the file, or why it is not taken.
  struct TLigneFichier {
    TNiveauEtat Niveau = TNiveauEtat::Neutre;
    QString Texte;
  };
  const TLigneFichier& Fichier() const { return fichier_; }
  /// What step 2 will do: "12 nouveaux, 3 modifiés, 2 partis"; "" before a file is accepted.
  QString Effet() const;

  /// The band of the progress.
  struct TFeuille {
    bool Visible = false;
    bool Arretee = false;  ///< by a fault; the band stays
    QString Titre;
    QString Note;
    int Fait = 0;
    int Total = 0;
    QString Nom;  ///< who is in hand
  };
  const TFeuille& Feuille() const { return feuille_; }

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  void RemplirGrille();
  void Ouvrir(const QString& chemin);
  void DecrireFichier(bool accepte);
  void DefinirFichier(TNiveauEtat niveau, const QString& texte);
  void PrendreEnMain(int ligne);
  void SuivreLigne(int ligne);
  void Arreter();
  void AnnoncerEffet();
  void DireSansSite(const QStringList& sansSite) const;

  TContexteEcran& contexte_;
  std::unique_ptr<TImportRegistre> import_;  // once shown: it knows the layout of the files
  TLigneFichier fichier_;
  TEffetRegistre effet_;
  TFeuille feuille_;
  bool enCours_ = false;
};
