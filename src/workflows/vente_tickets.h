#pragma once
#include <QString>
#include <vector>

#include "core/currency.h"

class IDialogues;
class TClasse;
class TEleve;
class TEleves;
struct TTicket;

/// How many tickets a pupil has left, as the canteen sees it.
enum class TNiveauTickets { Suffisant, Negatif, Sans, Bas };
/// `Bas` is one or two.
TNiveauTickets NiveauTickets(int solde);

/// Pupils of a class by their tickets.
struct TCompteursTickets {
  int Negatif = 0;
  int Sans = 0;
  int Bas = 0;
};

/// Reads the balances of the class in one statement.
TCompteursTickets CompterTickets(const TClasse& classe);
/// The pupils of the school with less than three tickets, who owes most first, then in the order of the
/// classes; of those who have left only who owes some. Reads the balances in one statement.
std::vector<TEleve*> ElevesSousTrois(const TEleves& eleves);

/// So many tickets may be sold at once: 1 to 999.
bool EstNombreTickets(int nombre);
/// What is said of any other number.
QString RefusNombreTickets();
/// The number as typed. Raises EConvertError for a text that is none.
int LireNombreTickets(const QString& texte);
/// Why a ticket is not sold at that price; "" when it may be.
QString RefusPrixTicket(Currency prix);
/// What a sale comes to, before it is made: "2 tickets manquants seront réglés."; "" when it settles none.
QString AnnonceVente(const TEleve& eleve, int nombre);
/// Asks, then deletes the ticket for good. False when the user said no.
bool SupprimerTicket(IDialogues& dialogues, TEleve& eleve, TTicket& ticket);
