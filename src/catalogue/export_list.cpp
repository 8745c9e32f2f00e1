#include "catalogue/export_list.h"
