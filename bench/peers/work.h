#ifndef WORK_H
#define WORK_H

// One way of doing a visible work, step by step.
// May touch: Qt Core.

#include <QString>

#include <functional>
#include <memory>

struct Work {
    QString name;
    std::function<void()> step;  // until everything is painted
    std::shared_ptr<void> parts; // that the steps use
};

#endif // WORK_H
