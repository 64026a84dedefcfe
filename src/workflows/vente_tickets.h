#pragma once
#include <QString>

class IDialogues;
class TClasse;
class TEleve;
struct TTicket;

/// Pupils of a class by their tickets.
struct TCompteursTickets {
  int Negatif = 0;
  int Sans = 0;
  int Bas = 0;  ///< one or two
};

/// Reads the tickets of the class in one statement.
TCompteursTickets CompterTickets(const TClasse& classe);

/// How many tickets are sold at once: 1 to 999. Raises EConvertError for any other text.
int LireNombreTickets(const QString& texte);
/// What a sale comes to, before it is made: "2 tickets manquants seront réglés."; "" when it settles none.
QString AnnonceVente(const TEleve& eleve, int nombre);
/// Asks, then deletes the ticket for good. False when the user said no.
bool SupprimerTicket(IDialogues& dialogues, TEleve& eleve, TTicket& ticket);
