#pragma once

class TEleve;

/// Inside a common transaction: whoever reserves the same pupil waits here until that transaction ends. What
/// is looked at afterwards stays so until this one ends, as far as others reserve too. Raises Exception.
void Reserver(const TEleve& eleve);
