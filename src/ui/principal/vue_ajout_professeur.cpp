#include "ui/principal/vue_ajout_professeur.h"

#include <QLineEdit>

#include "screens/principal/frm_ajout_professeur.h"
#include "ui/commun/champ_libelle.h"

using namespace Qt::StringLiterals;

VueAjoutProfesseur::VueAjoutProfesseur(TFrmAjoutProfesseur& form, QWidget* parent)
    : DialogueBase(u"Ajout d'un professeur"_s, parent),
      form_(form),
      nom_(new QLineEdit),
      prenom_(new QLineEdit) {
  setMinimumWidth(Theme::Px(400));
  for (const auto& [libelle, champ] : {std::pair{u"Nom :"_s, nom_}, std::pair{u"Prénom :"_s, prenom_}}) {
    auto* ligne = new ChampLibelle(libelle, champ);
    ligne->DefinirLargeurLibelle(80);
    Contenu()->addWidget(ligne);
  }
  DefinirPrincipal(u"Valider"_s);
  nom_->setFocus();
}

bool VueAjoutProfesseur::Valider() {
  form_.Nom = nom_->text();
  form_.Prenom = prenom_->text();
  if (form_.btnValiderClick()) return true;
  nom_->setFocus();
  return false;
}
