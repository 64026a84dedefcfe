#pragma once
#include <gtest/gtest.h>

#include "core/exceptions.h"

/// What a refused call says; one that is not refused fails the test.
template <class E = Exception>
QString Refus(const auto& geste) {
  try {
    geste();
  } catch (const E& e) {
    return e.Message;
  }
  ADD_FAILURE() << "not refused";
  return {};
}
