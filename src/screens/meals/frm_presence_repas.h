#pragma once
#include <QImage>
#include <memory>
#include <optional>

#include "screens/contexte_ecran.h"
#include "workflows/copie_locale.h"

/// The tablet at the canteen: a tap notes a pupil's meal. Needs no database.
class TFrmPresenceRepas : public TForm {
 public:
  explicit TFrmPresenceRepas(TContexteEcran& contexte);

  /// Why there is nobody to serve; "" when there is.
  const QString& Empechement() const { return empechement_; }
  /// What brings them. The screen is gone on return.
  void btnTransfertClick() { contexte_.Principal.AllerAuTransfert(); }
  /// "mercredi 23 novembre 2016"; it follows the clock after midnight.
  QString lblDate() const;
  /// What is wrong with the day of the clock; "" when nothing is. It forbids nothing.
  QString AvertissementDate() const;
  /// "3 repas à transférer", "Élèves copiés le 21/11/2016 à 08h15"
  QString NoteEnAttente() const;
  QString NoteTransfert() const;

  // Years, then the classes of one, then the pupils of a class.
  std::vector<QString> Annees() const;
  void btnAnneeClick(const QString& annee);
  bool AnneeChoisie() const { return !annee_.isEmpty(); }
  struct TBoutonClasse {
    TClasse* Classe = nullptr;
    QString Libelle;
    QString Compte;       ///< "12 sur 21"
    bool EnMain = false;  ///< its pupils are those that show
  };
  std::vector<TBoutonClasse> ClassesDeLAnnee() const;
  void btnClasseClick(TClasse& classe);
  /// "RETOUR": the years again.
  void btnRetourClick();
  /// "P3 A · 12 sur 21", or what is searched for.
  QString lblClasse() const;
  /// Pupils of every class whose name holds the text, "" for those of the class.
  void edRechercheChange(const QString& texte);
  const QString& Recherche() const { return recherche_; }

  struct TCadre {
    TEleve* Eleve = nullptr;
    QString Nom, Prenom;
    QString Statut;  ///< "Repas complet", "transféré" or ""
    bool Servi = false;
    bool Radie = false;
  };
  std::vector<TCadre> Cadres() const;
  /// A null picture for a pupil without one.
  static QImage Photo(const TEleve& eleve);
  /// A tap: the meal is on the disk before its status shows.
  void CadreClick(TEleve& eleve);
  /// The clock has moved on.
  void Horloge();

 protected:
  void FormShow() override;

 private:
  TDateTime Aujourdhui() const;
  std::vector<TEleve*> Montres() const;
  QString Compte(const TClasse& classe) const;

  TContexteEcran& contexte_;
  std::optional<TServiceHorsLigne> service_;
  QString empechement_;
  QString annee_;
  TClasse* classe_ = nullptr;
  QString recherche_;
  TDateTime jourMontre_ = 0.0;
};
