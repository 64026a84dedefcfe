#pragma once
#include "screens/attendance/frm_ajout_releve.h"
#include "ui/commun/dialogue_base.h"

class ChampLibelle;
class QComboBox;
class SaisieDate;
class SaisieHeure;

class VueAjoutReleve : public DialogueBase {
  Q_OBJECT
 public:
  VueAjoutReleve(TFrmAjoutReleve& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  ChampLibelle* Ajouter(const QString& libelle, QWidget* champ);
  QWidget* Champ(TFrmAjoutReleve::TChamp champ) const;

  TFrmAjoutReleve& form_;
  SaisieDate* date_;
  QComboBox* type_;
  SaisieHeure* debut_;
  SaisieHeure* fin_;
  QComboBox* implantation_;
};
