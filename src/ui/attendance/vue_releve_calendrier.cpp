#include "ui/attendance/vue_releve_calendrier.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QComboBox>
#include <QPushButton>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "core/formats.h"
#include "screens/attendance/frm_releve_calendrier.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/saisie.h"

using namespace Qt::StringLiterals;

VueReleveCalendrier::VueReleveCalendrier(TFrmReleveCalendrier& form, QWidget* parent)
    : DialogueBase(u"Relevé des services"_s, parent),
      form_(form),
      calendrier_(new QCalendarWidget),
      note_(new MarqueEtat) {
  setMinimumWidth(Theme::Px(460));
  DefinirEntete(u"Gestion des relevés des services sur calendrier"_s);
  auto* types = new QComboBox;
  types->addItems(TFrmReleveCalendrier::Types());
  types->setCurrentIndex(form.Type());
  connect(types, &QComboBox::activated, this, [this](int type) { form_.TypeChange(type); });
  Contenu()->addWidget(new ChampLibelle(u"Nom de l'élève :"_s, new Etiquette(form.NomEleve())));
  Contenu()->addWidget(new ChampLibelle(u"Type de relevé :"_s, types));
  Contenu()->addWidget(calendrier_, 1);
  Contenu()->addWidget(note_);

  HabillerCalendrier(*calendrier_);
  calendrier_->setDateRange(DateVersQt(form.Etendue().Premier), DateVersQt(form.Etendue().Dernier));
  calendrier_->setSelectedDate(DateVersQt(form.Date()));
  calendrier_->setToolTip(u"Entrée ou double clic ajoute le relevé du jour choisi"_s);
  connect(calendrier_, &QCalendarWidget::selectionChanged, this, [this] {
    form_.DateChange(DateDeQt(calendrier_->selectedDate()));
    DireLeJour();
  });
  connect(calendrier_, &QCalendarWidget::activated, this, [this](const QDate& jour) {
    form_.DateChange(DateDeQt(jour));
    form_.PlannerCalendar1DblClick();
  });
  DefinirPrincipal(u"Fermer"_s);
  Annuler()->hide();
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
  form.Type() < 0 ? types->setFocus() : calendrier_->setFocus();
}

void VueReleveCalendrier::Actualiser() {
  QTextCharFormat marque;
  marque.setBackground(Theme::Couleur(TRole::Selection));
  marque.setForeground(Theme::Couleur(TRole::SurSelection));
  marque.setFontWeight(QFont::Bold);
  calendrier_->setDateTextFormat(QDate(), QTextCharFormat());
  for (const TDateTime date : form_.Marques()) calendrier_->setDateTextFormat(DateVersQt(date), marque);
  note_->Definir(form_.Note().isEmpty() ? QString() : u"data-information"_s, form_.Note());
  DireLeJour();
}

void VueReleveCalendrier::DireLeJour() {
  const QString jour = FormatJourLong(form_.Date()) % (form_.EstMarque(form_.Date()) ? u", marqué" : u"");
  for (QWidget* partie : calendrier_->findChildren<QWidget*>())
    if (partie->hasFocus()) partie->setAccessibleName(jour);
  calendrier_->setAccessibleName(jour);
  QAccessibleEvent nom(calendrier_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&nom);
}

bool VueReleveCalendrier::Valider() {
  form_.btnFermerClick();
  return true;
}
