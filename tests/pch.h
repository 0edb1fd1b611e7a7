#pragma once
// What nearly every test includes; precompiled once for all of them.
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <QDomElement>
#include <QGuiApplication>
#include <QHash>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
