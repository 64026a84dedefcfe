#include "ui/principal/dialogue_reessai.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeur = 560;

/// A link that Enter and Space follow, and whose focus is seen.
class Lien : public QLabel {
 public:
  explicit Lien(const QString& texte) : QLabel(u"<a href=\"#\">" % texte.toHtmlEscaped() % u"</a>") {
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(texte);
    setContentsMargins(Theme::Px(4), Theme::Px(4), Theme::Px(4), Theme::Px(4));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }

 protected:
  void keyPressEvent(QKeyEvent* touche) override {
    if (touche->key() == Qt::Key_Return || touche->key() == Qt::Key_Enter || touche->key() == Qt::Key_Space)
      emit linkActivated(u"#"_s);
    else
      QLabel::keyPressEvent(touche);
  }
  void focusInEvent(QFocusEvent* evenement) override {
    QLabel::focusInEvent(evenement);
    update();
  }
  void focusOutEvent(QFocusEvent* evenement) override {
    QLabel::focusOutEvent(evenement);
    update();
  }
  void paintEvent(QPaintEvent* evenement) override {
    QLabel::paintEvent(evenement);
    if (!hasFocus()) return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(palette().color(QPalette::Highlight), 2));
    peintre.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Theme::Px(4), Theme::Px(4));
  }
};

}  // namespace

DialogueReessai::DialogueReessai(const TReessai& reessai, QWidget* parent)
    : DialogueBase(reessai.Titre, parent) {
  DefinirEntete(reessai.Texte);
  setMinimumWidth(Theme::Px(kLargeur));
  if (!reessai.Cause.isEmpty()) {  // what really happened comes before what it may be
    auto* cause = new Etiquette(reessai.Cause, TRole::Texte, &Theme::Gras);
    cause->setWordWrap(true);
    cause->setTextFormat(Qt::PlainText);
    cause->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Contenu()->addWidget(cause);
  }
  auto* explication = new Etiquette(reessai.Explication);
  explication->setWordWrap(true);
  Contenu()->addWidget(explication);

  auto* lien = new Lien(reessai.Lien);
  connect(lien, &QLabel::linkActivated, this, [this, surLien = reessai.SurLien] {
    if (surLien) surLien();
    Principal()->setFocus();  // Enter tries the new name
  });
  Contenu()->addWidget(lien);

  Contenu()->addStretch();
  if (reessai.SurFichier)
    connect(AjouterBouton(u"&Choisir le fichier..."_s), &QPushButton::clicked, this,
            [this, surFichier = reessai.SurFichier] {
              if (surFichier()) accept();
            });
  DefinirPrincipal(u"&Réessayer"_s);
  resize(minimumWidth(), layout()->totalHeightForWidth(minimumWidth()));
  Principal()->setFocus();
}
