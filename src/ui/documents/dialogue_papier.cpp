#include "ui/documents/dialogue_papier.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QPageSize>
#include <QRadioButton>
#include <cmath>

#include "ui/commun/champ_libelle.h"

using namespace Qt::StringLiterals;

namespace {

/// Millimetres that are not seen.
constexpr double kEgal = 1.0;

bool MemeTaille(const QSizeF& a, const QSizeF& b) {
  return std::abs(a.width() - b.width()) < kEgal && std::abs(a.height() - b.height()) < kEgal;
}

}  // namespace

DialoguePapier::DialoguePapier(const TPapier& papier, QWidget* parent)
    : DialogueBase(u"Mise en page"_s, parent),
      format_(new QComboBox),
      portrait_(new QRadioButton(u"Portrait"_s)),
      paysage_(new QRadioButton(u"Paysage"_s)),
      marge_(new QDoubleSpinBox) {
  const bool paysage = papier.Taille.width() > papier.Taille.height();
  const QSizeF debout = paysage ? papier.Taille.transposed() : papier.Taille;
  for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::A3, QPageSize::A5, QPageSize::A6})
    AjouterFormat(QPageSize::name(id), QPageSize::size(id, QPageSize::Millimeter));
  int choisi = -1;
  for (int i = 0; i < format_->count(); ++i)
    if (MemeTaille(format_->itemData(i).toSizeF(), debout)) choisi = i;
  if (choisi < 0) {
    AjouterFormat(u"%1 × %2 mm"_s.arg(std::lround(debout.width())).arg(std::lround(debout.height())), debout);
    choisi = format_->count() - 1;
  }
  format_->setCurrentIndex(choisi);
  (paysage ? paysage_ : portrait_)->setChecked(true);
  marge_->setRange(0, 50);
  marge_->setDecimals(0);
  marge_->setSuffix(u" mm"_s);
  marge_->setValue(papier.Marge);
  auto* sens = new QWidget;
  auto* ligne = new QHBoxLayout(sens);
  ligne->setContentsMargins(0, 0, 0, 0);
  ligne->addWidget(portrait_);
  ligne->addWidget(paysage_);
  ligne->addStretch(1);
  const std::pair<QString, QWidget*> champs[] = {
      {u"Format :"_s, format_}, {u"Orientation :"_s, sens}, {u"Marge :"_s, marge_}};
  for (const auto& [texte, champ] : champs) {
    auto* libelle = new ChampLibelle(texte, champ);
    libelle->DefinirLargeurLibelle(96);
    Contenu()->addWidget(libelle);
  }
  setMinimumWidth(Theme::Px(400));
  DefinirPrincipal(u"Valider"_s);
}

void DialoguePapier::AjouterFormat(const QString& nom, const QSizeF& taille) {
  format_->addItem(nom, taille);
}

TPapier DialoguePapier::Papier() const {
  const QSizeF taille = format_->currentData().toSizeF();
  return {paysage_->isChecked() ? taille.transposed() : taille, marge_->value()};
}
