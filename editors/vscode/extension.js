// Starts the language server for all schemas that are open, and does nothing else.
const { commands, window, workspace } = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");

const setting = "ostra-params.path";
const documentSelector = ["file", "untitled"].flatMap((scheme) =>
  ["json", "jsonl"].map((language) => ({ scheme, language })),
);
let client;

async function start() {
  const command = workspace.getConfiguration().get(setting);
  client = new LanguageClient("ostra-params", "OstraParameters", { command, args: ["lsp"] }, { documentSelector });
  try {
    await client.start();
  } catch {
    client = undefined;
    const choice = await window.showErrorMessage(`${command} cannot be started. Where is the program?`, "Open Settings");
    if (choice) {
      await commands.executeCommand("workbench.action.openSettings", setting);
    }
  }
}

exports.activate = (context) => {
  context.subscriptions.push(
    workspace.onDidChangeConfiguration(async (event) => {
      if (event.affectsConfiguration(setting)) {
        await client?.stop();
        start();
      }
    }),
  );
  start(); // a question that waits for its answer keeps nobody waiting
};

exports.deactivate = () => client?.stop();
