// PLACEHOLDER: being written.
#pragma once
