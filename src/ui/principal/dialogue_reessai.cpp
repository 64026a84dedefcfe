#include "ui/principal/dialogue_reessai.h"

#include <QPushButton>

DialogueReessai::DialogueReessai(const TReessai& reessai, QWidget* parent)
    : DialogueBase(reessai.Titre, parent) {
  DefinirEntete(reessai.Texte);
  setMinimumWidth(Theme::Px(560));
  auto* explication = new Etiquette(reessai.Explication);
  explication->setWordWrap(true);
  Contenu()->addWidget(explication);

  auto* lien = new QLabel(u"<a href=\"#\">" % reessai.Lien.toHtmlEscaped() % u"</a>");
  lien->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  lien->setFocusPolicy(Qt::StrongFocus);
  lien->setAccessibleName(reessai.Lien);
  connect(lien, &QLabel::linkActivated, this, [surLien = reessai.SurLien] {
    if (surLien) surLien();
  });
  Contenu()->addWidget(lien);

  if (!reessai.Cause.isEmpty()) {
    auto* cause = new Etiquette(reessai.Cause, TRole::Secondaire);
    cause->setWordWrap(true);
    cause->setTextFormat(Qt::PlainText);
    cause->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Contenu()->addSpacing(Theme::Px(8));
    Contenu()->addWidget(cause);
  }
  DefinirPrincipal(QStringLiteral("&Réessayer"));
  Principal()->setFocus();
}
