#pragma once

constexpr int kOfTheHost = 0;
