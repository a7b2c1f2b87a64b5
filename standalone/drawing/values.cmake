# SPDX-License-Identifier: MIT
set(KV_VALUE_SOURCES
    OdCmColor.cpp
    OdDbDatabaseReactor.cpp
    OdDbHandle.cpp
    OdDbIdMapping.cpp
    OdResBuf.cpp
    OdRxClass.cpp
    OdRxObject.cpp
    OdString.cpp
    odrxAlloc.cpp
    readLineTypeFile.cpp)
