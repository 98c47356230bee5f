#pragma once

#include "configuration_problems.h"

#include <varnhold/strings.h>

#include <string>

/// Listens to the problems of configuration files while it lives: each as "line:column code", one a line.
class HeardProblems {
public:
    HeardProblems()
        : m_earlier(SetConfigurationProblemSink([this](const ConfigurationProblem& problem) {
              text += std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " + problem.code + "\n";
              last = problem;
          })) {}
    ~HeardProblems() { SetConfigurationProblemSink(m_earlier); }
    HeardProblems(const HeardProblems&) = delete;
    HeardProblems& operator=(const HeardProblems&) = delete;

    std::string text;
    ConfigurationProblem last;

private:
    ConfigurationProblemSink m_earlier;
};
