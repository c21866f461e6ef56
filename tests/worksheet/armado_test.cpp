// PLACEHOLDER: being written.
