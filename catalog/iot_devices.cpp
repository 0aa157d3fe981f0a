#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_iot_devices{"iot_devices", nullptr, 0};
