#include "ui/commun/bouton.h"

#include <QStyle>

#include "ui/commun/texte.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char kGenre[] = "genreBouton";
constexpr char kIcone[] = "nomIcone";

TRole RoleIcone(TGenreBouton genre) {
  switch (genre) {
    case TGenreBouton::Principal:
      return TRole::SurAccent;
    case TGenreBouton::Suppression:
      return TRole::Erreur;
    case TGenreBouton::Simple:
    case TGenreBouton::Discret:
      break;
  }
  return TRole::Texte;
}

}  // namespace

QPushButton* CreerBouton(TGenreBouton genre, const QString& texte, const QString& icone, QWidget* parent) {
  auto* bouton = new QPushButton(texte, parent);
  bouton->setProperty(kIcone, icone);
  bouton->setAutoDefault(false);
  DefinirGenre(*bouton, genre);
  return bouton;
}

QPushButton* BoutonPrincipal(const QString& texte, const QString& icone, QWidget* parent) {
  return CreerBouton(TGenreBouton::Principal, texte, icone, parent);
}

QPushButton* BoutonSimple(const QString& texte, const QString& icone, QWidget* parent) {
  return CreerBouton(TGenreBouton::Simple, texte, icone, parent);
}

QPushButton* BoutonDiscret(const QString& texte, const QString& icone, QWidget* parent) {
  return CreerBouton(TGenreBouton::Discret, texte, icone, parent);
}

QPushButton* BoutonSupprimer(const QString& nom, const QString& texte, QWidget* parent) {
  QPushButton* bouton = CreerBouton(TGenreBouton::Suppression, texte, u"edit-delete"_s, parent);
  bouton->setAccessibleName(nom);
  return bouton;
}

void DefinirGenre(QPushButton& bouton, TGenreBouton genre) {
  bouton.setProperty(kGenre, static_cast<int>(genre));
  const QString icone = bouton.property(kIcone).toString();
  if (!icone.isEmpty()) bouton.setIcon(Theme::Icone(icone, RoleIcone(genre)));
  bouton.style()->unpolish(&bouton);  // the style sheet looks at it then
  bouton.style()->polish(&bouton);
  bouton.updateGeometry();
}

TGenreBouton GenreDe(const QWidget* bouton) {
  return bouton ? static_cast<TGenreBouton>(bouton->property(kGenre).toInt()) : TGenreBouton::Simple;
}
