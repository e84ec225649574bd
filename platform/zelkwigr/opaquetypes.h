/// What the chart services of a larger system are given beside the command. Nothing here looks
/// inside: conversion works on syntax alone, so every pointer to one of them is null.
#pragma once

namespace recastor {

class FacSTDictionary;
class ProcedureDataSource;
class XDocument;
class ZELK_DataSource;

} // namespace recastor
