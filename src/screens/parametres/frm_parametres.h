#pragma once
#include <map>

#include "forms/grille.h"
#include "screens/parametres/champs_parametres.h"

using namespace Qt::StringLiterals;

/// A page of settings.
struct TPageParametres {
  QString Titre;
  std::unique_ptr<TChampsParametres> Champs;
};

/// The settings of the school, its payment groups, and the maintenance of the database. There is no command
/// to save: a field writes its setting when it is left or clicked. It needs the settings only, no year.
class TFrmParametres : public TForm {
 public:
  explicit TFrmParametres(TContexteEcran& contexte);

  // Facturation, Relevé des frais, Virements, Divers.
  std::vector<TPageParametres> Pages;
  /// The page that has a field of that name.
  TChampsParametres& PageDe(const QString& nom) const;

  /// Puts a text in the place of what is selected in that field, which is left as one that is being typed
  /// in. Where the caret then stands; -1 when the setting cannot hold it, which the user is told.
  int Inserer(const QString& nom, int debut, int fin, const QString& texte);
  /// "Ajouter le texte légal" of the statement of actual fees: added at the end, and stored.
  void AdvGlowButton2Click();

  /// "Groupes de paiements"; each row holds its TGroupeFrais.
  TGrille lbGroupe;
  void btnAjoutFaitClick();
  void btnDeleteFaitClick();

  /// "Mise à jour de la base de données"
  void btnEtape1Click();
  /// The settings that no field shows, by their number.
  void btnEtape1MouseDown();
  /// "Activer le mode professeur"
  void btnBoutonProfesseurClick();
  /// False where the meals are not used.
  bool BoutonProfesseurVisible() const;

  bool LaisserChamp() override;
  QString EnSuspens() const override;

 protected:
  void FormShow() override;
  bool FormCloseQuery() override;

 private:
  void Composer();
  void Avant(const TChamp& champ);
  void GarderPrix(const TChamp& champ);
  void RendrePrix(const QString& sauf);
  void ServeurFtpChange();
  void RemplirGroupes(const TGroupeFrais* choisi);
  bool SauverGroupes();
  void Dire(TNiveauEtat niveau, const QString& texte) const { contexte_.Principal.Etat(niveau, texte); }

  TContexteEcran& contexte_;
  std::map<QString, QString> prixRefuses_;  ///< stored texts of the prices that were refused, by field
  TLiens liens_;
};

/// The fields that a communication may hold.
inline const QString kChampComStruct = u"[ComStructParFacture]"_s;
inline const QString kChampDatePaiement = u"[DatePaiementFacture]"_s;
