#include "screens/principal/frm_ajout_professeur.h"

TFrmAjoutProfesseur::TFrmAjoutProfesseur(const TContexteEcran&)
    : TFrmDialogueDe(u"Ajout d'un professeur"_s,
                     {{{.Nom = u"edNom"_s,
                        .Libelle = u"Nom :"_s,
                        .Longueur = 50,
                        .Obligatoire = true,
                        .Refus = u"Un nom est obligatoire"_s},
                       Membre(&TNomProfesseur::Nom)},
                      {{.Nom = u"edPrenom"_s, .Libelle = u"Prénom :"_s, .Longueur = 50},
                       Membre(&TNomProfesseur::Prenom)}}) {}
