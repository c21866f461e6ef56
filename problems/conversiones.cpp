// PLACEHOLDER: being written.
#include "problems/conversiones.h"
