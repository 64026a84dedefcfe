#pragma once
#include <QPushButton>

using namespace Qt::StringLiterals;

/// How a button looks. One primary a screen: it is the next step.
enum class TGenreBouton {
  Simple,
  Principal,
  Discret,     ///< no outline: beside a heading
  Suppression  ///< discreet, its icon in the colour of faults
};

/// A button of the house. `icone` is a Breeze name or empty.
QPushButton* CreerBouton(TGenreBouton genre, const QString& texte, const QString& icone = {},
                         QWidget* parent = nullptr);
QPushButton* BoutonPrincipal(const QString& texte, const QString& icone = {}, QWidget* parent = nullptr);
QPushButton* BoutonSimple(const QString& texte, const QString& icone = {}, QWidget* parent = nullptr);
QPushButton* BoutonDiscret(const QString& texte, const QString& icone = {}, QWidget* parent = nullptr);
/// `nom` is what a screen reader says: "Supprimer le relevé".
QPushButton* BoutonSupprimer(const QString& nom, const QString& texte = u"Supprimer"_s,
                             QWidget* parent = nullptr);

/// Also when the button is shown: another step has become the next one.
void DefinirGenre(QPushButton& bouton, TGenreBouton genre);
/// Simple for a button that is none of the house.
TGenreBouton GenreDe(const QWidget* bouton);
