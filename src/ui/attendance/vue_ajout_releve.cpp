#include "ui/attendance/vue_ajout_releve.h"

#include <QComboBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/exceptions.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/saisie.h"

using namespace Qt::StringLiterals;

namespace {

/// "7h30" as "07:30"; what cannot be read as it was typed.
QString TexteHeure(const SaisieHeure& champ) {
  const auto heure = champ.Heure();
  if (!heure || champ.text().trimmed().isEmpty()) return champ.text();
  return HeureVersQt(*heure).toString(u"hh:mm"_s);
}

}  // namespace

VueAjoutReleve::VueAjoutReleve(TFrmAjoutReleve& form, QWidget* parent)
    : DialogueBase(u"Ajout de relevé"_s, parent),
      form_(form),
      date_(new SaisieDate),
      type_(new QComboBox),
      debut_(new SaisieHeure),
      fin_(new SaisieHeure),
      implantation_(new QComboBox) {
  setMinimumWidth(Theme::Px(360));
  Ajouter(u"Date du relevé:"_s, date_);
  Ajouter(u"Type de relevé:"_s, type_);
  Ajouter(u"Heure de début:"_s, debut_);
  Ajouter(u"Heure de fin :"_s, fin_);
  Ajouter(u"Implantation:"_s, implantation_)->setVisible(form.AvecImplantation());
  DefinirPrincipal(u"Valider"_s);

  date_->setText(form.Date);
  debut_->setText(form.Debut);
  fin_->setText(form.Fin);
  type_->addItems(TextesTypePresence());
  type_->setCurrentIndex(form.IndexType);
  implantation_->addItems(form.Implantations());
  implantation_->setCurrentIndex(form.IndexImplantation);
  Champ(form.PremierChamp())->setFocus(Qt::OtherFocusReason);
}

ChampLibelle* VueAjoutReleve::Ajouter(const QString& libelle, QWidget* champ) {
  auto* ligne = new ChampLibelle(libelle, champ);
  ligne->DefinirLargeurLibelle(120);
  Contenu()->addWidget(ligne);
  return ligne;
}

QWidget* VueAjoutReleve::Champ(TFrmAjoutReleve::TChamp champ) const {
  switch (champ) {
    case TFrmAjoutReleve::TChamp::Date:
      return date_;
    case TFrmAjoutReleve::TChamp::Debut:
      return debut_;
    case TFrmAjoutReleve::TChamp::Fin:
      return fin_;
    case TFrmAjoutReleve::TChamp::Implantation:
      return implantation_;
    case TFrmAjoutReleve::TChamp::Type:
      break;
  }
  return type_;
}

bool VueAjoutReleve::Valider() {
  form_.Date = date_->text();
  form_.Debut = TexteHeure(*debut_);
  form_.Fin = TexteHeure(*fin_);
  form_.IndexType = type_->currentIndex();
  form_.IndexImplantation = implantation_->currentIndex();
  try {
    if (form_.BitBtn1Click()) return true;
  } catch (const EConvertError& e) {
    MontrerFaute(e.Message, Champ(form_.ChampAttendu()));
    return false;
  }
  debut_->setText(form_.Debut);
  fin_->setText(form_.Fin);
  Champ(form_.ChampAttendu())->setFocus(Qt::OtherFocusReason);
  return false;
}
