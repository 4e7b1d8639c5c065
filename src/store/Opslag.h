// What a record class needs from the session.
#pragma once

#include "forms/Gesprek.h"
#include "store/Bestandenset.h"
#include "store/Volgers.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// References only; all must outlive the record class.
struct Opslag {
  Bestandenset& bestanden;
  Volgers& volgers;
  Gesprek& gesprek;
  const Schrijfwijze& schrijfwijze;
};

}  // namespace lb77
